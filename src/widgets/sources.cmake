target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/AccessibleRole.cpp
    ${CMAKE_CURRENT_LIST_DIR}/GestureScrollArea.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NoticeQueue.cpp
    ${CMAKE_CURRENT_LIST_DIR}/QFlowLayout.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Spinner.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ThemeIcon.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UAlert.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBackButton.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UElidedLabel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UExitButton.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UIconLabel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ULoadingBar.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ULoadingIndicator.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UTextButton.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UThemePicture.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UToast.cpp)
