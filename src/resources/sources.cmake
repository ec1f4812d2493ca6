target_sources(ryx_user_objects PRIVATE ${CMAKE_CURRENT_LIST_DIR}/ryx.qrc)
ryx_add_translations(ryx_user_objects /res/translations)
