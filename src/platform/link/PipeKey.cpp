#include "platform/link/PipeKey.h"

const char* PipeKeyName(PipeKey key) {
    switch (key) {
#define RYX_CASE(name, number)                                                                               \
    case PipeKey::name:                                                                                      \
        return #name;
        RYX_PIPE_KEYS(RYX_CASE)
#undef RYX_CASE
    }
    return nullptr;
}
