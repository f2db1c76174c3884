#import "appkit/drawing/OtherFonts.h"

#include <fontconfig/fontconfig.h>

#include <memory>
#include <span>

namespace qbsp::appkit {

namespace {

template <auto destroy>
struct Destroy {
    template <class Object>
    void operator()(Object* object) const {
        destroy(object);
    }
};

using CharSet = std::unique_ptr<FcCharSet, Destroy<FcCharSetDestroy>>;
using Pattern = std::unique_ptr<FcPattern, Destroy<FcPatternDestroy>>;

CharSet charSetOf(NSString* characters) {
    CharSet set(FcCharSetCreate());
    NSData* data = [characters dataUsingEncoding:NSUTF32LittleEndianStringEncoding];
    const std::span codes(static_cast<const FcChar32*>([data bytes]), [data length] / sizeof(FcChar32));
    for (const FcChar32 code : codes)
        FcCharSetAddChar(set.get(), code);
    return set;
}

Pattern bestMatch(const CharSet& wanted) {
    const Pattern pattern(FcPatternCreate());
    FcPatternAddCharSet(pattern.get(), FC_CHARSET, wanted.get());
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultNoMatch;
    return Pattern(FcFontMatch(nullptr, pattern.get(), &result));
}

bool has(FcPattern* font, const CharSet& wanted) {
    FcCharSet* covered = nullptr;
    return FcPatternGetCharSet(font, FC_CHARSET, 0, &covered) == FcResultMatch &&
           FcCharSetIsSubset(wanted.get(), covered) == FcTrue;
}

} // namespace

NSFont* otherFontWithCharacters(NSString* characters, CGFloat size) {
    constexpr int regularWeight = 5;
    const CharSet wanted = charSetOf(characters);
    const Pattern match = bestMatch(wanted);
    FcChar8* family = nullptr;
    if (match == nullptr || !has(match.get(), wanted) ||
        FcPatternGetString(match.get(), FC_FAMILY, 0, &family) != FcResultMatch)
        return nil;
    NSString* name = [NSString stringWithUTF8String:static_cast<const char*>(static_cast<void*>(family))];
    return [[NSFontManager sharedFontManager] fontWithFamily:name
                                                      traits:0
                                                      weight:regularWeight
                                                        size:static_cast<float>(size)];
}

} // namespace qbsp::appkit
