#include "appkit/recorder/KeyNames.h"

#include <algorithm>
#include <array>

namespace qbsp::recorder {

namespace {

struct FixedName {
    VirtualKey key = noKey;
    KeyName name;
};

constexpr FixedName sameName(VirtualKey key, std::string_view name) {
    return {.key = key, .name = {.symbol = name, .word = name}};
}

constexpr std::array fixedNames{
    FixedName{36, {"↩", "Return"}},
    FixedName{48, {"⇥", "Tab"}},
    sameName(49, "Space"),
    FixedName{51, {"⌫", "Delete", "Backspace"}},
    FixedName{53, {"Esc", "Escape", "Esc"}},
    FixedName{117, {"⌦", "Forward Delete", "Delete"}},
    FixedName{114, {"Help", "Help", "Insert"}},
    FixedName{115, {"↖", "Home"}},
    FixedName{119, {"↘", "End"}},
    FixedName{116, {"⇞", "Page Up"}},
    FixedName{121, {"⇟", "Page Down"}},
    FixedName{123, {"←", "Left Arrow", "Left"}},
    FixedName{124, {"→", "Right Arrow", "Right"}},
    FixedName{125, {"↓", "Down Arrow", "Down"}},
    FixedName{126, {"↑", "Up Arrow", "Up"}},
    sameName(110, "Menu"),
    FixedName{102, {"英数", "Eisu", "Muhenkan"}},
    FixedName{104, {"かな", "Kana", "Henkan"}},
    sameName(122, "F1"),
    sameName(120, "F2"),
    sameName(99, "F3"),
    sameName(118, "F4"),
    sameName(96, "F5"),
    sameName(97, "F6"),
    sameName(98, "F7"),
    sameName(100, "F8"),
    sameName(101, "F9"),
    sameName(109, "F10"),
    sameName(103, "F11"),
    sameName(111, "F12"),
    sameName(105, "F13"),
    sameName(107, "F14"),
    sameName(113, "F15"),
    sameName(106, "F16"),
    sameName(64, "F17"),
    sameName(79, "F18"),
    sameName(80, "F19"),
    sameName(90, "F20"),
    FixedName{65, {"Keypad .", "Keypad Decimal"}},
    FixedName{67, {"Keypad ×", "Keypad Multiply"}},
    FixedName{69, {"Keypad +", "Keypad Plus"}},
    FixedName{71, {"⌧", "Keypad Clear", "Num Lock"}},
    FixedName{75, {"Keypad ÷", "Keypad Divide"}},
    FixedName{76, {"⌤", "Keypad Enter"}},
    FixedName{78, {"Keypad −", "Keypad Minus"}},
    FixedName{81, {"Keypad =", "Keypad Equals"}},
    FixedName{95, {"Keypad ,", "Keypad Comma"}},
    sameName(82, "Keypad 0"),
    sameName(83, "Keypad 1"),
    sameName(84, "Keypad 2"),
    sameName(85, "Keypad 3"),
    sameName(86, "Keypad 4"),
    sameName(87, "Keypad 5"),
    sameName(88, "Keypad 6"),
    sameName(89, "Keypad 7"),
    sameName(91, "Keypad 8"),
    sameName(92, "Keypad 9"),
};

struct PrintedLabel {
    VirtualKey key;
    std::string_view label;
};

constexpr std::array americanLabels{
    PrintedLabel{0, "A"},  PrintedLabel{1, "S"},   PrintedLabel{2, "D"},  PrintedLabel{3, "F"},
    PrintedLabel{4, "H"},  PrintedLabel{5, "G"},   PrintedLabel{6, "Z"},  PrintedLabel{7, "X"},
    PrintedLabel{8, "C"},  PrintedLabel{9, "V"},   PrintedLabel{10, "§"}, PrintedLabel{11, "B"},
    PrintedLabel{12, "Q"}, PrintedLabel{13, "W"},  PrintedLabel{14, "E"}, PrintedLabel{15, "R"},
    PrintedLabel{16, "Y"}, PrintedLabel{17, "T"},  PrintedLabel{18, "1"}, PrintedLabel{19, "2"},
    PrintedLabel{20, "3"}, PrintedLabel{21, "4"},  PrintedLabel{22, "6"}, PrintedLabel{23, "5"},
    PrintedLabel{24, "="}, PrintedLabel{25, "9"},  PrintedLabel{26, "7"}, PrintedLabel{27, "-"},
    PrintedLabel{28, "8"}, PrintedLabel{29, "0"},  PrintedLabel{30, "]"}, PrintedLabel{31, "O"},
    PrintedLabel{32, "U"}, PrintedLabel{33, "["},  PrintedLabel{34, "I"}, PrintedLabel{35, "P"},
    PrintedLabel{37, "L"}, PrintedLabel{38, "J"},  PrintedLabel{39, "'"}, PrintedLabel{40, "K"},
    PrintedLabel{41, ";"}, PrintedLabel{42, "\\"}, PrintedLabel{43, ","}, PrintedLabel{44, "/"},
    PrintedLabel{45, "N"}, PrintedLabel{46, "M"},  PrintedLabel{47, "."}, PrintedLabel{50, "`"},
    PrintedLabel{93, "¥"}, PrintedLabel{94, "_"},
};

} // namespace

KeyName fixedKeyName(VirtualKey key) {
    const auto* found = std::ranges::find(fixedNames, key, &FixedName::key);
    return found == fixedNames.end() ? KeyName{} : found->name;
}

std::string_view americanLabel(VirtualKey key) {
    const auto* found = std::ranges::find(americanLabels, key, &PrintedLabel::key);
    return found == americanLabels.end() ? std::string_view{} : found->label;
}

} // namespace qbsp::recorder
