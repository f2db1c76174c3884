#include "appkit/recorder/KeyComboText.h"

#include "appkit/recorder/KeyNames.h"

#include <array>
#include <span>
#include <string_view>

namespace qbsp::recorder {

namespace {

struct ModifierText {
    CocoaFlags flag;
    std::string_view text;
};

// Symbols are in the order of the Mac's menus; in words, the strongest modifier comes first.
constexpr std::array symbols{ModifierText{modifiers::control, "⌃"}, ModifierText{modifiers::option, "⌥"},
                             ModifierText{modifiers::shift, "⇧"}, ModifierText{modifiers::command, "⌘"}};
constexpr std::array words{
    ModifierText{modifiers::command, "Command "}, ModifierText{modifiers::option, "Option "},
    ModifierText{modifiers::control, "Control "}, ModifierText{modifiers::shift, "Shift "}};

std::string modifierTexts(CocoaFlags flags, std::span<const ModifierText> texts) {
    std::string result;
    for (const ModifierText& modifier : texts)
        if ((flags & modifier.flag) != 0)
            result += modifier.text;
    return result;
}

std::string printedLabel(VirtualKey key, const LayoutLabel& layoutLabel) {
    if (std::string label = layoutLabel(key); !label.empty())
        return label;
    if (const std::string_view label = americanLabel(key); !label.empty())
        return std::string(label);
    return "Key " + std::to_string(key);
}

std::string keyText(VirtualKey key, std::string_view KeyName::*kind, const LayoutLabel& layoutLabel) {
    const std::string_view fixed = fixedKeyName(key).*kind;
    return fixed.empty() ? printedLabel(key, layoutLabel) : std::string(fixed);
}

} // namespace

std::string comboInSymbols(const KeyCombo& combo, const LayoutLabel& layoutLabel) {
    if (!holdsKey(combo))
        return {};
    return modifierTexts(combo.flags, symbols) + keyText(combo.code, &KeyName::symbol, layoutLabel);
}

std::string comboInWords(const KeyCombo& combo, const LayoutLabel& layoutLabel) {
    if (!holdsKey(combo))
        return {};
    return modifierTexts(combo.flags, words) + keyText(combo.code, &KeyName::word, layoutLabel);
}

} // namespace qbsp::recorder
