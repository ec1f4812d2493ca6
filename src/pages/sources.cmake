target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/NetworkCheck.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NetworkStepRow.cpp
    ${CMAKE_CURRENT_LIST_DIR}/NetworkTexts.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SupportContact.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UAppearance.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyAbout.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyLiveChannel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodyNetwork.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBodySetting.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UpdateStore.cpp
    ${CMAKE_CURRENT_LIST_DIR}/USupportCard.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UTextDialog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UTextExport.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UUpdateCard.cpp)
