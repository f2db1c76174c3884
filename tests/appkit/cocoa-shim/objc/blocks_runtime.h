#pragma once

#ifdef __cplusplus
extern "C" {
#endif
void* _Block_copy(const void*);
void _Block_release(const void*);
#ifdef __cplusplus
}
#endif

#define Block_copy(block) ((__typeof__(block))_Block_copy((const void*)(block)))
#define Block_release(block) _Block_release((const void*)(block))
