target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/FileFetch.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FileNames.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MessageFilePanel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MessageFiles.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MessageHistory.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MessageQueue.cpp
    ${CMAKE_CURRENT_LIST_DIR}/MessageText.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UMessageFileDialog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UMessageList.cpp)
