target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/ActHistory.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ActList.cpp
    ${CMAKE_CURRENT_LIST_DIR}/LiveChannels.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Transparency.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UAppearance.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyAbout.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyLiveChannel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyLiveChannelItem.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyNetwork.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodySetting.cpp)
