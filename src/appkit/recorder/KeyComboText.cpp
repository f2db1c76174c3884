#include "appkit/recorder/KeyComboText.h"

#include "appkit/recorder/KeyNames.h"

#include <string_view>

namespace qbsp::recorder {

namespace {

/// Their names, each with the joint behind it.
std::string modifierTexts(CocoaFlags flags, const Notation& notation) {
    std::string result;
    for (const Notation::Modifier& modifier : notation.modifiers)
        if ((flags & modifier.flag) != 0)
            result.append(modifier.name).append(notation.joint);
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

std::string comboText(const KeyCombo& combo, const Notation& notation, const LayoutLabel& layoutLabel) {
    if (!holdsKey(combo))
        return {};
    return modifierTexts(combo.flags, notation) + keyText(combo.code, notation.key, layoutLabel);
}

std::string heldText(CocoaFlags held, const Notation& notation) {
    return modifierTexts(held, notation) + "…";
}

} // namespace qbsp::recorder
