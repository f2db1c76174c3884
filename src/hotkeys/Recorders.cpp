#include "hotkeys/StoredHotKey.h"
#include "hotkeys/Texts.h"
#include "pane/QBSPPreferencePane.h"
#include "pane/SharedSorterFolder.h"
#include "platform/Host.h"
#include "platform/PropertyLists.h"
#include "platform/UserDefaults.h"
#include "settings/SorterStores.h"

#include <tuple>

namespace qbsp {

namespace {

/// The hot key that a recorder must not repeat: the other one.
struct OtherHotKey {
    HotKeyKeys keys;
    platform::TextKey reason;
};

std::optional<OtherHotKey> otherHotKey(const PaneControls& controls,
                                       const platform::RecorderControl& recorder) {
    if (&recorder == controls.clipHotKeyRecorder.get())
        return OtherHotKey{noteHotKeyKeys, texts::usedForTakeNote};
    if (&recorder == controls.noteHotKeyRecorder.get())
        return OtherHotKey{clipHotKeyKeys, texts::usedForCopySelection};
    return std::nullopt;
}

} // namespace

void QBSPPreferencePane::loadHotKey(const HotKeyKeys& keys, platform::RecorderControl& recorder) {
    const platform::Value code = services_.userDefaults.objectForKey(keys.code);
    if (!code.exists())
        return;
    const platform::Value modifiers = services_.userDefaults.objectForKey(keys.modifiers);
    recorder.setKeyCombo(StoredHotKey::read(code, modifiers).keyCombo());
}

bool QBSPPreferencePane::shortcutRecorderIsKeyCodeAndFlagsTakenReason(
    const platform::RecorderControl& recorder, std::int64_t keyCode, platform::CocoaFlags flags,
    std::optional<std::string>* reason) {
    const auto other = otherHotKey(controls, recorder);
    if (!other)
        return false;
    const platform::Value code = services_.userDefaults.objectForKey(other->keys.code);
    const platform::Value modifiers = services_.userDefaults.objectForKey(other->keys.modifiers);
    const bool taken = StoredHotKey::read(code, modifiers).matches(keyCode, flags);
    if (taken && reason != nullptr)
        *reason = localized(other->reason);
    return taken;
}

void QBSPPreferencePane::shortcutRecorderKeyComboDidChange(const platform::RecorderControl& recorder,
                                                           const platform::KeyCombo& keyCombo) {
    if (&recorder == controls.clipHotKeyRecorder.get()) {
        storeHotKey(clipHotKeyKeys, keyCombo);
        // The embedded Sorter looks for this one hot key, and no other, outside the host's defaults.
        if (services_.host.isSandboxed())
            mirrorClipHotKey(keyCombo);
    } else if (&recorder == controls.noteHotKeyRecorder.get()) {
        storeHotKey(noteHotKeyKeys, keyCombo);
    }
    // A recorder that is neither of the two has no keys to store under. What follows is done for every change
    // that a recorder reports: the Sorter then reads its hot keys again, which does no harm.
    // The Sorter is notified whether or not the flush worked: the hot key is set.
    std::ignore = services_.userDefaults.synchronize();
    postToSorter(QBSSorterShortcutKeysChanged, std::nullopt);
    enableAttentionLabel(&recorder);
}

void QBSPPreferencePane::storeHotKey(const HotKeyKeys& keys, const platform::KeyCombo& keyCombo) {
    services_.userDefaults.setObjectForKey(storedCode(keyCombo), keys.code);
    services_.userDefaults.setObjectForKey(storedModifiers(keyCombo), keys.modifiers);
}

void QBSPPreferencePane::mirrorClipHotKey(const platform::KeyCombo& keyCombo) {
    platform::Dictionary hotKey;
    hotKey.emplace(clipHotKeyKeys.code.text, storedCode(keyCombo));
    hotKey.emplace(clipHotKeyKeys.modifiers.text, storedModifiers(keyCombo));
    std::optional<platform::URL> file;
    if (const auto folder = sharedSorterFolder(services_.files, services_.log))
        file = folder->appendingPathComponent(clipHotKeyFileName);
    // The defaults hold the hot key whether or not the mirror could be written.
    std::ignore = services_.propertyLists.writeToURL(hotKey, file, platform::Atomically::yes);
}

void QBSPPreferencePane::enableAttentionLabel(Sender) {
    // Despite its name it shows no label: a running Sorter is notified when the pane is left, and needs no
    // restart.
    shouldRestartSorter_ = true;
}

} // namespace qbsp
