#include "platform/context/AppContextData.h"

AppContextData* AppContextData::Instance() {
    static AppContextData data;
    return &data;
}

void AppContextData::Reset() {
    SetEnrolled(false);
    SetLinked(false);
    SetContextText({});
    SetUnlockPassword({});
    SetUnbindPassword({});
    SetSchoolCode({});
    SetAdminAccount({});
    SetDeviceName({});
    SetDeviceTags({});
    SetPermissionList({});
}
