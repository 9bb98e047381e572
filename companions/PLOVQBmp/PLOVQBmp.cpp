// The picture library: twelve pictures, rasterised from our SVG artwork at
// build time and embedded as PNG.

#include "PLOVQBmp.h"

#define PLOV_PIC(id)                                          \
    extern "C" const unsigned char plovqbmp_pic##id##_start[]; \
    extern "C" const unsigned char plovqbmp_pic##id##_end[];
PLOV_PIC(200) PLOV_PIC(201) PLOV_PIC(202) PLOV_PIC(203)
PLOV_PIC(300) PLOV_PIC(301) PLOV_PIC(302) PLOV_PIC(303)
PLOV_PIC(400) PLOV_PIC(401) PLOV_PIC(402) PLOV_PIC(403)
#undef PLOV_PIC

namespace {

struct Picture {
    int32_t id;
    const unsigned char *start;
    const unsigned char *end;
};

#define PLOV_ENTRY(id) {id, plovqbmp_pic##id##_start, plovqbmp_pic##id##_end}
constexpr Picture kPictures[] = {
    PLOV_ENTRY(200), PLOV_ENTRY(201), PLOV_ENTRY(202), PLOV_ENTRY(203),
    PLOV_ENTRY(300), PLOV_ENTRY(301), PLOV_ENTRY(302), PLOV_ENTRY(303),
    PLOV_ENTRY(400), PLOV_ENTRY(401), PLOV_ENTRY(402), PLOV_ENTRY(403),
};
#undef PLOV_ENTRY

} // namespace

extern "C" int32_t PLOV_LoadBitmap(int32_t id, const unsigned char **data, uint32_t *size)
{
    for (const Picture &p : kPictures) {
        if (p.id == id) {
            if (data)
                *data = p.start;
            if (size)
                *size = uint32_t(p.end - p.start);
            return 0;
        }
    }
    return -1;
}
