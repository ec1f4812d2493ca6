#include "platform/context/AppContextData.h"

AppContextData* AppContextData::Instance() {
    static AppContextData data;
    return &data;
}
