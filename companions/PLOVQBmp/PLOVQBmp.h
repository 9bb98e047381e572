// The picture library's C interface. The game loads this library at run
// time by absolute path and looks the function up by name.
#pragma once

#include <stdint.h>

#if defined(__GNUC__)
#define PLOVQBMP_API __attribute__((visibility("default")))
#else
#define PLOVQBMP_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

// Finds picture `id` (200-203, 300-303, 400-403). On success stores the
// PNG-encoded bitmap in *data and its byte count in *size and returns 0; the
// bytes stay valid while the library is loaded. An unknown id returns -1 and
// leaves *data and *size untouched.
PLOVQBMP_API int32_t PLOV_LoadBitmap(int32_t id, const unsigned char **data, uint32_t *size);

#ifdef __cplusplus
}
#endif
