target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/AttachmentFile.cpp
    ${CMAKE_CURRENT_LIST_DIR}/AttachmentItem.cpp
    ${CMAKE_CURRENT_LIST_DIR}/AttachmentStrip.cpp
    ${CMAKE_CURRENT_LIST_DIR}/DescriptionBox.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FeedbackAlerts.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FeedbackBackend.cpp
    ${CMAKE_CURRENT_LIST_DIR}/FeedbackForm.cpp
    ${CMAKE_CURRENT_LIST_DIR}/LogFilesDialog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/LogReport.cpp
    ${CMAKE_CURRENT_LIST_DIR}/ReportArchive.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UFeedback.cpp)
