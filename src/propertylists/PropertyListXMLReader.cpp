#include "propertylists/PropertyListAssembler.h"
#include "propertylists/PropertyListFormats.h"
#include "propertylists/PropertyListText.h"

#include <array>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <limits>
#include <memory>

namespace qbsp::propertylists {

using platform::Array;
using platform::Dictionary;
using platform::Value;

namespace {

std::uint32_t codeAt(std::string_view text, std::size_t place) {
    std::uint32_t code = 0;
    for (std::size_t index = place; index < place + 4; ++index) {
        const int digit = index < text.size() ? hexadecimalDigit(text[index]) : -1;
        if (digit < 0)
            return std::numeric_limits<std::uint32_t>::max();
        code = code << 4U | static_cast<std::uint32_t>(digit);
    }
    return code;
}

// GNUstep writes characters that it does not trust a file with as \Uxxxx, those beyond 16 bits in two halves.
// What only looks like such an escape is the text that it is.
std::string unescaped(std::string_view text) {
    constexpr std::string_view mark = "\\U";
    constexpr std::size_t length = 6;
    std::string result;
    for (auto found = text.find(mark); found != std::string_view::npos; found = text.find(mark)) {
        result += text.substr(0, found);
        text.remove_prefix(found);
        std::uint32_t code = codeAt(text, mark.size());
        std::size_t taken = length;
        if (isFirstHalf(code) && text.substr(length).starts_with(mark))
            if (const auto second = codeAt(text, length + mark.size()); isSecondHalf(second)) {
                code = joinedHalves(code, second);
                taken = 2 * length;
            }
        if (!appendCharacter(code, result)) {
            result += mark;
            taken = mark.size();
        }
        text.remove_prefix(taken);
    }
    return result += text;
}

struct Leaf {
    std::string_view name;
    Value (*value)(std::string_view text);
};

constexpr std::array leaves{
    Leaf{"string",
         [](std::string_view text) {
             return Value(unescaped(text));
         }},
    Leaf{"integer", integerFrom},
    Leaf{"real", realFrom},
    Leaf{"true",
         [](std::string_view) {
             return Value(true);
         }},
    Leaf{"false",
         [](std::string_view) {
             return Value(false);
         }},
    Leaf{"date", dateFrom},
    Leaf{"data", dataFrom},
};

const Leaf* leafOf(std::string_view name) {
    for (const Leaf& leaf : leaves)
        if (leaf.name == name)
            return &leaf;
    return nullptr;
}

/// Takes what the XML parser finds.
class XMLReceiver {
public:
    void begin(std::string_view element) {
        if (isInLeaf_)
            refuse();
        else if (element == "dict")
            list_.begin(Dictionary());
        else if (element == "array")
            list_.begin(Array());
        else if (element == "plist")
            isInList_ = isInList_ || !list_.isOutside() ? refuse() : true;
        else
            beginLeaf(element);
    }

    void end(std::string_view element) {
        if (isInLeaf_)
            endLeaf(element);
        else if (element == "dict")
            list_.endDictionary();
        else if (element == "array")
            list_.endArray();
    }

    void characters(std::string_view text) {
        if (isInLeaf_)
            text_ += text;
        else if (text.find_first_not_of(" \t\r\n") != std::string_view::npos)
            refuse();
    }

    bool refuse() { return list_.refuse(Fault::notAPropertyList); }

    [[nodiscard]] PropertyListAssembler& list() { return list_; }

private:
    void beginLeaf(std::string_view element) {
        isInLeaf_ = element == "key" || leafOf(element) != nullptr;
        text_.clear();
        if (!isInLeaf_)
            refuse();
    }

    void endLeaf(std::string_view element) {
        isInLeaf_ = false;
        if (const Leaf* leaf = leafOf(element))
            list_.add(leaf->value(text_));
        else
            list_.addKey(unescaped(text_));
    }

    PropertyListAssembler list_;
    std::string text_;
    bool isInList_ = false;
    bool isInLeaf_ = false;
};

/// Hands on to the receiver, and has the parser stop as soon as that refuses.
template <class HandOn>
void tell(void* context, HandOn handOn) {
    auto* parser = static_cast<xmlParserCtxt*>(context);
    auto& receiver = *static_cast<XMLReceiver*>(parser->_private);
    if (!receiver.list().isRefused())
        handOn(receiver);
    if (receiver.list().isRefused())
        xmlStopParser(parser);
}

/// The library's characters are UTF-8 in unsigned bytes.
const char* charactersAt(const xmlChar* text) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): both are bytes.
    return reinterpret_cast<const char*>(text);
}

std::string_view viewOf(const xmlChar* text) {
    return charactersAt(text);
}

void startElement(void* context, const xmlChar* name, const xmlChar*, const xmlChar*, int, const xmlChar**,
                  int, int, const xmlChar**) {
    tell(context, [&](XMLReceiver& receiver) { receiver.begin(viewOf(name)); });
}

void endElement(void* context, const xmlChar* name, const xmlChar*, const xmlChar*) {
    tell(context, [&](XMLReceiver& receiver) { receiver.end(viewOf(name)); });
}

void characters(void* context, const xmlChar* text, int length) {
    const std::string_view view(charactersAt(text), static_cast<std::size_t>(length));
    tell(context, [&](XMLReceiver& receiver) { receiver.characters(view); });
}

// No property list defines or names entities, and a few lines of them stand for more text than a machine has
// room for.
void entityDeclaration(void* context, const xmlChar*, int, const xmlChar*, const xmlChar*, xmlChar*) {
    tell(context, [](XMLReceiver& receiver) { receiver.refuse(); });
}

void entityReference(void* context, const xmlChar*) {
    tell(context, [](XMLReceiver& receiver) { receiver.refuse(); });
}

xmlSAXHandler handlers() {
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = startElement;
    handler.endElementNs = endElement;
    handler.characters = characters;
    handler.ignorableWhitespace = characters;
    handler.entityDecl = entityDeclaration;
    handler.reference = entityReference;
    return handler;
}

struct ParserDeleter {
    void operator()(xmlParserCtxt* parser) const {
        xmlFreeDoc(parser->myDoc); // made where an entity is declared
        xmlFreeParserCtxt(parser);
    }
};

} // namespace

Parsed parsedXML(std::string_view bytes) {
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        return Fault::tooLarge;
    const std::unique_ptr<xmlParserCtxt, ParserDeleter> parser(
        xmlCreateMemoryParserCtxt(bytes.data(), static_cast<int>(bytes.size())));
    if (parser == nullptr)
        return Fault::notAPropertyList;
    XMLReceiver receiver;
    parser->_private = &receiver;
    *parser->sax = handlers();
    // Long texts are no fault. Nesting and entities are bounded by the receiver.
    xmlCtxtUseOptions(parser.get(),
                      XML_PARSE_HUGE | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    if (xmlParseDocument(parser.get()) != 0)
        receiver.refuse();
    return receiver.list().finished();
}

} // namespace qbsp::propertylists
