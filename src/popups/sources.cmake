target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/PopupHistory.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PopupPanel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PopupPicker.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PopupPicture.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PopupReport.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PopupRow.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PickableWindow.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PopupWindowsDialog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ProgramIcon.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyFeaturesPopups.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UPopupBlockMask.cpp)
