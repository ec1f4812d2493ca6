target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/PopupHistory.cpp
    ${CMAKE_CURRENT_LIST_DIR}/PopupRow.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ProgramIcon.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyFeaturesPopups.cpp)
