# Compiler settings shared by every target.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)

# A precompiled header is cached too when ccache is told not to distrust its time stamps and macros.
find_program(RYX_CCACHE ccache)
if(RYX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env
        "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
        "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" "CCACHE_NOHASHDIR=1" ${RYX_CCACHE})
endif()

if(MSVC)
    add_compile_options(/W4 /WX /utf-8 /permissive-)
else()
    add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Werror)
endif()

# What makes a fault harder to use; packaging/check-hardening reads it from the files that are delivered. Sanitizers have
# checks of their own in these places.
if(MSVC)
    add_compile_options(/guard:cf)
    add_link_options(/guard:cf /DYNAMICBASE /HIGHENTROPYVA /NXCOMPAT)
elseif(WIN32)
    add_link_options(-Wl,--dynamicbase,--high-entropy-va,--nxcompat)
elseif(NOT RYX_SANITIZE)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    add_compile_options(-fstack-protector-strong)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
        add_compile_options(-fcf-protection=full)
    endif()
    if(CMAKE_BUILD_TYPE MATCHES "Rel") # the library's checks take an optimising compiler
        add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    endif()
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
endif()

if(RYX_SANITIZE)
    # Instrumented code makes GCC see uninitialised reads in the standard library that are none.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    add_compile_options(-fsanitize=${RYX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer -O1)
    add_link_options(-fsanitize=${RYX_SANITIZE})
endif()

add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
