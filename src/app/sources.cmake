target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/MainWindow.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Navigator.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Notifier.cpp
    ${CMAKE_CURRENT_LIST_DIR}/Pages.cpp
    ${CMAKE_CURRENT_LIST_DIR}/TrayTone.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UBody.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UHeader.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ULauncher.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UMenu.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UMenuEntry.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UTrayIcon.cpp)
