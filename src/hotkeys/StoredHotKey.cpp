#include "hotkeys/StoredHotKey.h"

namespace qbsp {

StoredHotKey StoredHotKey::read(const platform::Value& code, const platform::Value& modifiers) {
    return {static_cast<std::int16_t>(code.intValue()), modifiers.unsignedIntValue()};
}

platform::KeyCombo StoredHotKey::keyCombo() const {
    return {platform::carbonToCocoaFlags(modifiers), code};
}

bool StoredHotKey::matches(std::int64_t keyCode, platform::CocoaFlags flags) const {
    return code == keyCode && modifiers == platform::cocoaToCarbonFlags(flags);
}

platform::Value storedCode(const platform::KeyCombo& keyCombo) {
    return static_cast<std::int32_t>(keyCombo.code);
}

platform::Value storedModifiers(const platform::KeyCombo& keyCombo) {
    return platform::cocoaToCarbonFlags(keyCombo.flags);
}

} // namespace qbsp
