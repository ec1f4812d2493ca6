target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/EnrollmentFile.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TagRules.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyEnroll.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyEnrollModal.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyEnrollPermissionsModal.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyEnrollTagAdd.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyEnrollTagItem.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyEnrollTags.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyEnrollTip.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyEnrollUsbAlert.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UEnrollToast.cpp)
