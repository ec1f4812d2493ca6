target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/LockMarker.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PasswordAttempts.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PasswordPad.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PasswordPrompt.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ScreenCovers.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TopmostCover.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyEnrollUnModal.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodySettingLockModal.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UDeviceScreenLock.cpp
    ${CMAKE_CURRENT_LIST_DIR}/USettingsLockMaskModal.cpp
    ${CMAKE_CURRENT_LIST_DIR}/WindowKeeper.cpp)
