# ryx_add_translations(TARGET PREFIX file.ts...)
#
# Compiles the .ts files with lrelease and embeds the .qm files in TARGET under PREFIX.
# lrelease is looked up as a program, so that a cross build can use the build machine's own.
find_program(RYX_LRELEASE NAMES lrelease lrelease-qt5
    HINTS ENV QTDIR "/usr/lib/qt5/bin" PATH_SUFFIXES bin REQUIRED NO_CMAKE_FIND_ROOT_PATH)

function(ryx_add_translations target prefix)
    set(out "${CMAKE_CURRENT_BINARY_DIR}/translations")
    set(qrc "${out}/translations.qrc")
    set(entries "")
    set(qms "")
    foreach(ts IN LISTS ARGN)
        get_filename_component(name "${ts}" NAME_WE)
        add_custom_command(
            OUTPUT "${out}/${name}.qm"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${out}"
            COMMAND "${RYX_LRELEASE}" -silent "${ts}" -qm "${out}/${name}.qm"
            DEPENDS "${ts}"
            VERBATIM)
        list(APPEND qms "${out}/${name}.qm")
        string(APPEND entries "<file>${name}.qm</file>")
    endforeach()
    file(CONFIGURE OUTPUT "${qrc}"
        CONTENT "<RCC><qresource prefix=\"${prefix}\">${entries}</qresource></RCC>")
    set_source_files_properties("${qrc}" PROPERTIES OBJECT_DEPENDS "${qms}")
    target_sources(${target} PRIVATE "${qrc}" ${qms})
endfunction()
