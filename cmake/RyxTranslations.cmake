# The texts of the user interface. Every folder below src keeps its own in FOLDER/translations/FOLDER_LANGUAGE.ts,
# and the files of a language are compiled into one.
set(RYX_LANGUAGES en de fr es zh_CN ja ar)

# lrelease is looked up as a program, so that a cross build can use the build machine's own.
find_program(RYX_LRELEASE NAMES lrelease lrelease-qt5
    HINTS ENV QTDIR "/usr/lib/qt5/bin" PATH_SUFFIXES bin REQUIRED NO_CMAKE_FIND_ROOT_PATH)

# ryx_add_translations(TARGET PREFIX)
#
# Compiles the texts with lrelease and embeds PREFIX/ryx_LANGUAGE.qm in TARGET.
function(ryx_add_translations target prefix)
    set(out "${CMAKE_CURRENT_BINARY_DIR}/translations")
    set(qrc "${out}/translations.qrc")
    set(entries "")
    set(qms "")
    foreach(language IN LISTS RYX_LANGUAGES)
        set(qm "${out}/ryx_${language}.qm")
        file(GLOB files CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/*/translations/*_${language}.ts")
        add_custom_command(
            OUTPUT "${qm}"
            COMMAND "${RYX_LRELEASE}" -silent ${files} -qm "${qm}"
            DEPENDS ${files}
            VERBATIM)
        list(APPEND qms "${qm}")
        string(APPEND entries "<file>ryx_${language}.qm</file>")
    endforeach()
    file(CONFIGURE OUTPUT "${qrc}"
        CONTENT "<RCC><qresource prefix=\"${prefix}\">${entries}</qresource></RCC>")
    set_source_files_properties("${qrc}" PROPERTIES OBJECT_DEPENDS "${qms}")
    target_sources(${target} PRIVATE "${qrc}" ${qms})
endfunction()

# The target "translations" adds the keys that the code uses and the files lack; lupdate would sort them by class.
find_package(Python3 COMPONENTS Interpreter QUIET)
if(Python3_FOUND)
    add_custom_target(translations
        COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tools/translations/update.py"
            "${PROJECT_SOURCE_DIR}/src" ${RYX_LANGUAGES}
        VERBATIM)
endif()
