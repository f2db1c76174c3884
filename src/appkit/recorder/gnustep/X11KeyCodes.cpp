#include "appkit/recorder/gnustep/X11KeyCodes.h"

#include <algorithm>
#include <array>

namespace qbsp::recorder {

namespace {

struct KeyPair {
    X11KeyCode x11;
    VirtualKey mac;
};

// By the position of the keys, row by row. Keys that only one of the two keyboards has are left out.
constexpr std::array pairs{
    // Escape and the function keys
    KeyPair{9, 53},
    KeyPair{67, 122},
    KeyPair{68, 120},
    KeyPair{69, 99},
    KeyPair{70, 118},
    KeyPair{71, 96},
    KeyPair{72, 97},
    KeyPair{73, 98},
    KeyPair{74, 100},
    KeyPair{75, 101},
    KeyPair{76, 109},
    KeyPair{95, 103},
    KeyPair{96, 111},
    KeyPair{191, 105},
    KeyPair{192, 107},
    KeyPair{193, 113},
    KeyPair{194, 106},
    KeyPair{195, 64},
    KeyPair{196, 79},
    KeyPair{197, 80},
    KeyPair{198, 90},
    // ` 1 2 3 4 5 6 7 8 9 0 - = Backspace
    KeyPair{49, 50},
    KeyPair{10, 18},
    KeyPair{11, 19},
    KeyPair{12, 20},
    KeyPair{13, 21},
    KeyPair{14, 23},
    KeyPair{15, 22},
    KeyPair{16, 26},
    KeyPair{17, 28},
    KeyPair{18, 25},
    KeyPair{19, 29},
    KeyPair{20, 27},
    KeyPair{21, 24},
    KeyPair{22, 51},
    // Tab Q W E R T Y U I O P [ ] and the backslash
    KeyPair{23, 48},
    KeyPair{24, 12},
    KeyPair{25, 13},
    KeyPair{26, 14},
    KeyPair{27, 15},
    KeyPair{28, 17},
    KeyPair{29, 16},
    KeyPair{30, 32},
    KeyPair{31, 34},
    KeyPair{32, 31},
    KeyPair{33, 35},
    KeyPair{34, 33},
    KeyPair{35, 30},
    KeyPair{51, 42},
    // A S D F G H J K L ; ' Return
    KeyPair{38, 0},
    KeyPair{39, 1},
    KeyPair{40, 2},
    KeyPair{41, 3},
    KeyPair{42, 5},
    KeyPair{43, 4},
    KeyPair{44, 38},
    KeyPair{45, 40},
    KeyPair{46, 37},
    KeyPair{47, 41},
    KeyPair{48, 39},
    KeyPair{36, 36},
    // the key that European keyboards have beside Shift, Z X C V B N M , . / Space
    KeyPair{94, 10},
    KeyPair{52, 6},
    KeyPair{53, 7},
    KeyPair{54, 8},
    KeyPair{55, 9},
    KeyPair{56, 11},
    KeyPair{57, 45},
    KeyPair{58, 46},
    KeyPair{59, 43},
    KeyPair{60, 47},
    KeyPair{61, 44},
    KeyPair{65, 49},
    // Japanese keyboards: Yen, underscore, Eisu, Kana
    KeyPair{132, 93},
    KeyPair{97, 94},
    KeyPair{102, 102},
    KeyPair{100, 104},
    // Insert (which the Mac calls Help), Home, Page Up, Delete, End, Page Down, arrows, Menu
    KeyPair{118, 114},
    KeyPair{110, 115},
    KeyPair{112, 116},
    KeyPair{119, 117},
    KeyPair{115, 119},
    KeyPair{117, 121},
    KeyPair{113, 123},
    KeyPair{114, 124},
    KeyPair{116, 125},
    KeyPair{111, 126},
    KeyPair{135, 110},
    // keypad: Num Lock (which the Mac calls Clear), = / * - + Enter . ,
    KeyPair{77, 71},
    KeyPair{125, 81},
    KeyPair{106, 75},
    KeyPair{63, 67},
    KeyPair{82, 78},
    KeyPair{86, 69},
    KeyPair{104, 76},
    KeyPair{91, 65},
    KeyPair{129, 95},
    // keypad: 0 to 9
    KeyPair{90, 82},
    KeyPair{87, 83},
    KeyPair{88, 84},
    KeyPair{89, 85},
    KeyPair{83, 86},
    KeyPair{84, 87},
    KeyPair{85, 88},
    KeyPair{79, 89},
    KeyPair{80, 91},
    KeyPair{81, 92},
};

} // namespace

VirtualKey virtualKeyOfX11(X11KeyCode keyCode) {
    const auto* found = std::ranges::find(pairs, keyCode, &KeyPair::x11);
    return found == pairs.end() ? noKey : found->mac;
}

X11KeyCode x11KeyOfVirtual(VirtualKey key) {
    const auto* found = std::ranges::find(pairs, key, &KeyPair::mac);
    return found == pairs.end() ? 0 : found->x11;
}

} // namespace qbsp::recorder
