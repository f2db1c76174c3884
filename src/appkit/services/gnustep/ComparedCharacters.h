#pragma once

#include <string>
#include <string_view>

namespace qbsp::appkit {

/// Takes a text, in UTF-8, apart into what GNUstep compares: a UTF-16 unit and the marks that go with it, in
/// the form in which they are compared when case is ignored. Bytes that are no UTF-8 are units of their own.
class ComparedCharacters {
public:
    explicit ComparedCharacters(std::string_view text);

    [[nodiscard]] bool atEnd() const { return text_.empty(); }

    /// The next of them; there must be one.
    std::u16string take();

    /// The next of them that are ASCII without marks, as they are written; they are compared in lower case.
    std::string_view takeASCII();

private:
    std::string_view text_;
};

/// Bytes that have the order that the text has among others when case is ignored.
[[nodiscard]] std::string sortKey(std::string_view text);

} // namespace qbsp::appkit
