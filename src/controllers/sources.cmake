target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/ControlPanelThread.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ControlPanelWatch.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MainController.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MessageController.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PopupBlocker.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PopupRules.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PopupsController.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ProductNames.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SettingsLockController.cpp)
