target_sources(ryx_user_objects PRIVATE ${CMAKE_CURRENT_LIST_DIR}/ryx.qrc)
ryx_add_translations(ryx_user_objects /res/translations
    ${CMAKE_CURRENT_LIST_DIR}/translations/ryx_en.ts
    ${CMAKE_CURRENT_LIST_DIR}/translations/ryx_de.ts
    ${CMAKE_CURRENT_LIST_DIR}/translations/ryx_fr.ts
    ${CMAKE_CURRENT_LIST_DIR}/translations/ryx_es.ts
    ${CMAKE_CURRENT_LIST_DIR}/translations/ryx_zh_CN.ts
    ${CMAKE_CURRENT_LIST_DIR}/translations/ryx_ja.ts
    ${CMAKE_CURRENT_LIST_DIR}/translations/ryx_ar.ts)
