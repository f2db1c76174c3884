#include "propertylists/PropertyListAssembler.h"
#include "propertylists/PropertyListFormats.h"
#include "propertylists/PropertyListText.h"

#include <algorithm>
#include <optional>

namespace qbsp::propertylists {

using platform::Array;
using platform::Data;
using platform::Dictionary;
using platform::Value;

namespace {

constexpr std::string_view blank = " \t\r\n\v\f";

bool standsUnquoted(char character) {
    constexpr std::string_view marks = "\"'(),;<=>[\\]`{}";
    return character > ' ' && character < '\x7F' && marks.find(character) == std::string_view::npos;
}

char escapedCharacter(char letter) {
    constexpr std::string_view letters = "abtrnvf";
    constexpr std::string_view meanings = "\a\b\t\r\n\v\f";
    const auto place = letters.find(letter);
    return place == std::string_view::npos ? letter : meanings[place];
}

/// Reads the text of OpenStep and GNUstep. GNUstep's own reader calls itself for each level, and keeps
/// numbers of any length on the stack.
class TextReader {
public:
    explicit TextReader(std::string_view text) : text_(text) {}

    Parsed read() {
        while (!list_.isRefused() && skipBlanks())
            readPart();
        return list_.finished();
    }

private:
    void readPart() {
        if (take('{'))
            list_.begin(Dictionary());
        else if (take('('))
            list_.begin(Array());
        else if (take('}'))
            endContainer(list_.endDictionary());
        else if (take(')'))
            endContainer(list_.endArray());
        else if (list_.isOutside())
            refuse(); // any text begins like a leaf
        else if (list_.isInDictionary() && !hasKey_)
            readKey();
        else
            endValue(list_.add(readLeaf()));
    }

    void readKey() {
        const Value key = readLeaf();
        const auto* text = key.as<std::string>();
        hasKey_ = text != nullptr && list_.addKey(*text) && skipBlanks() && take('=');
        if (!hasKey_)
            refuse();
        // A container that begins has keys of its own.
        if (skipBlanks() && (text_.front() == '{' || text_.front() == '('))
            hasKey_ = false;
    }

    void endContainer(bool ended) {
        if (ended && !list_.isOutside())
            endValue(true);
    }

    // The last value of a dictionary may do without its semicolon, and that of an array with a comma.
    void endValue(bool added) {
        hasKey_ = false;
        if (!added || list_.isOutside())
            return;
        const char separator = list_.isInDictionary() ? ';' : ',';
        const char end = list_.isInDictionary() ? '}' : ')';
        if (!skipBlanks() || (!take(separator) && text_.front() != end))
            refuse();
    }

    Value readLeaf() {
        if (take('"'))
            return readQuoted();
        if (take('<'))
            return take('*') ? readTyped() : take('[') ? readBase64() : readHexadecimal();
        std::size_t length = 0;
        while (length < text_.size() && standsUnquoted(text_[length]))
            ++length;
        return length == 0 ? Value() : Value(std::string(takeFirst(length)));
    }

    Value readQuoted() {
        std::string result;
        while (!text_.empty() && text_.front() != '"') {
            const char character = takeFirst(1).front();
            if (character != '\\')
                result += character;
            else if (!readEscape(result))
                return {};
        }
        return take('"') ? Value(result) : Value();
    }

    bool readEscape(std::string& result) {
        if (text_.empty())
            return false;
        const char first = text_.front();
        if (first == 'u' || first == 'U') {
            text_.remove_prefix(1);
            return appendUnit(readCode(16, 4), result);
        }
        if (first >= '0' && first <= '7')
            return appendUnit(readCode(8, 3), result);
        result += escapedCharacter(takeFirst(1).front());
        return true;
    }

    // Characters beyond 16 bits are written in two halves.
    bool appendUnit(std::uint32_t code, std::string& result) {
        if (!isFirstHalf(code))
            return appendCharacter(code, result);
        const bool goesOn = take('\\') && (take('U') || take('u'));
        const std::uint32_t second = goesOn ? readCode(16, 4) : 0;
        return isSecondHalf(second) && appendCharacter(joinedHalves(code, second), result);
    }

    std::uint32_t readCode(int base, int digits) {
        std::uint32_t code = 0;
        for (; digits > 0 && !text_.empty(); --digits) {
            const int digit = hexadecimalDigit(text_.front());
            if (digit < 0 || digit >= base)
                break;
            code = code * static_cast<std::uint32_t>(base) + static_cast<std::uint32_t>(digit);
            text_.remove_prefix(1);
        }
        return code;
    }

    /// What stands before the closing mark, which is taken too; none without one.
    std::optional<std::string_view> takeUntil(std::string_view mark) {
        const auto end = text_.find(mark);
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::string_view before = takeFirst(end);
        text_.remove_prefix(mark.size());
        return before;
    }

    Value readTyped() {
        const auto typed = takeUntil(">");
        if (!typed || typed->size() < 2)
            return {};
        std::string_view value = typed->substr(1);
        if (value.size() > 2 && value.front() == '"' && value.back() == '"')
            value = value.substr(1, value.size() - 2);
        switch (typed->front()) {
        case 'I':
            return integerFrom(value);
        case 'R':
            return realFrom(value);
        case 'D':
            return dateFrom(value);
        case 'B':
            return value == "Y" ? Value(true) : value == "N" ? Value(false) : Value();
        default:
            return {};
        }
    }

    Value readBase64() {
        const auto digits = takeUntil("]>");
        return digits ? dataFrom(*digits) : Value();
    }

    Value readHexadecimal() {
        const auto digits = takeUntil(">");
        Data data;
        int first = -1;
        for (const char character : digits.value_or("")) {
            if (first < 0 && blank.find(character) != std::string_view::npos)
                continue;
            const int digit = hexadecimalDigit(character);
            if (digit < 0)
                return {};
            if (first >= 0)
                data.push_back(static_cast<std::byte>(first * 16 + digit));
            first = first < 0 ? digit : -1;
        }
        return digits && first < 0 ? Value(data) : Value();
    }

    /// Skips blanks and comments. False at the end.
    bool skipBlanks() {
        for (;;) {
            text_.remove_prefix(std::min(text_.find_first_not_of(blank), text_.size()));
            if (text_.starts_with("//"))
                text_.remove_prefix(std::min(text_.find('\n'), text_.size()));
            else if (!text_.starts_with("/*"))
                return !text_.empty();
            else if (text_.remove_prefix(2); !takeUntil("*/"))
                return refuse();
        }
    }

    bool take(char character) {
        const bool is = text_.starts_with(character);
        if (is)
            text_.remove_prefix(1);
        return is;
    }

    std::string_view takeFirst(std::size_t length) {
        const std::string_view first = text_.substr(0, length);
        text_.remove_prefix(length);
        return first;
    }

    bool refuse() { return list_.refuse(Fault::notAPropertyList); }

    std::string_view text_;
    PropertyListAssembler list_;
    bool hasKey_ = false;
};

} // namespace

Parsed parsedText(std::string_view bytes) {
    return TextReader(bytes).read();
}

} // namespace qbsp::propertylists
