# What makes the built programs a Windows product: version resource, icon, manifest, what is installed.

option(RYX_UI_ACCESS "Let the lock stand above the shell's windows; needs a signature and Program Files" OFF)
if(RYX_UI_ACCESS AND RYX_CONFIG_OVERRIDE)
    message(FATAL_ERROR "RYX_UI_ACCESS gives the program rights above those of the user's other programs, and "
        "RYX_CONFIG_OVERRIDE lets them steer it: use the preset windows-package.")
endif()

string(REPLACE "." "," RYX_RC_VERSION "${PROJECT_VERSION}")
string(REPLACE " " "." RYX_ASSEMBLY_NAME "${RYX_PRODUCT_NAME}")
set(folder "${CMAKE_CURRENT_LIST_DIR}/windows")
set(icon "${CMAKE_CURRENT_LIST_DIR}/../src/resources/common/desktop.ico")

# ryx_windows_resources(TARGET "what it is"): version resource; for programs also icon and manifest.
function(ryx_windows_resources target RYX_RC_DESCRIPTION)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "EXECUTABLE")
        set(RYX_RC_NAME "${target}.exe")
        set(RYX_RC_TYPE VFT_APP)
        set(RYX_RC_ICON "1 ICON \"${icon}\"")
        set(RYX_MANIFEST_UI_ACCESS false)
        if(RYX_UI_ACCESS AND target STREQUAL "velmora-ryx")
            set(RYX_MANIFEST_UI_ACCESS true)
        endif()
        configure_file("${folder}/app.manifest.in" "${CMAKE_BINARY_DIR}/resources/${target}.manifest" @ONLY)
        if(MSVC) # whose linker takes the manifest itself
            target_sources(${target} PRIVATE "${CMAKE_BINARY_DIR}/resources/${target}.manifest")
        else()
            set(RYX_RC_MANIFEST "1 24 \"${CMAKE_BINARY_DIR}/resources/${target}.manifest\"")
        endif()
    else()
        set(RYX_RC_NAME "RyxUser.dll")
        set(RYX_RC_TYPE VFT_DLL)
    endif()
    configure_file("${folder}/version.rc.in" "${CMAKE_BINARY_DIR}/resources/${target}.rc" @ONLY)
    target_sources(${target} PRIVATE "${CMAKE_BINARY_DIR}/resources/${target}.rc")
endfunction()

set_target_properties(ryx_user PROPERTIES PREFIX "")
ryx_windows_resources(velmora-ryx "${RYX_PRODUCT_NAME}")
ryx_windows_resources(ryx_user "${RYX_PRODUCT_NAME} user session")
ryx_windows_resources(ryx-capture "${RYX_PRODUCT_NAME} window picture")
ryx_windows_resources(ryx-agent "${RYX_PRODUCT_NAME} stand-in agent")
ryx_windows_resources(ryx-setup "${RYX_PRODUCT_NAME} setup")

# The packages hold the front end and all that it needs; the stand-in agent is no part of the product.
install(TARGETS velmora-ryx ryx-capture ryx_user RUNTIME DESTINATION .)
install(FILES "${folder}/qt.conf" DESTINATION .)

if(DEFINED RYX_WINDOWS_SDK)
    include("${CMAKE_CURRENT_LIST_DIR}/windows-libraries.cmake")
    configure_file("${folder}/parts.json.in" "${CMAKE_BINARY_DIR}/parts.json" @ONLY)
endif()
