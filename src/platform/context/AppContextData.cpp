#include "platform/context/AppContextData.h"

AppContextData* AppContextData::Instance() {
    static AppContextData data;
    return &data;
}

void AppContextData::ForgetEnrolment() {
    SetSchoolCode({});
    SetAdminAccount({});
    SetDeviceName({});
    SetDeviceTags({});
    SetPermissionList({});
    SetEnrolled(false);
}

void AppContextData::Reset() {
    ForgetEnrolment();
    SetLinked(false);
    SetContextText({});
    SetUnlockPassword({});
    SetUnbindPassword({});
}
