# Installs the libraries of the SDK that the product needs, Qt's plug-ins and translations, and the licences.

set(plugins platforms/qwindows iconengines/qsvgicon imageformats/qsvg imageformats/qico imageformats/qjpeg
    imageformats/qgif)
foreach(plugin IN LISTS plugins)
    get_filename_component(kind "${plugin}" DIRECTORY)
    install(FILES "${RYX_WINDOWS_SDK}/plugins/${plugin}.dll" DESTINATION "plugins/${kind}")
endforeach()

# Exactly the libraries that the programs and plug-ins ask for; what the SDK does not have is Windows' own.
# (CMake's own GET_RUNTIME_DEPENDENCIES looks for names in lower case, which this machine's files do not have.)
list(TRANSFORM plugins PREPEND "${RYX_WINDOWS_SDK}/plugins/" OUTPUT_VARIABLE pluginFiles)
list(TRANSFORM pluginFiles APPEND ".dll")
install(CODE "
    cmake_policy(SET CMP0057 NEW) # if(IN_LIST)
    set(unread \"$<TARGET_FILE:velmora-ryx>\" \"$<TARGET_FILE:ryx-capture>\" \"$<TARGET_FILE:ryx_user>\" ${pluginFiles})
    set(libraries)
    while(unread)
        list(POP_FRONT unread file)
        execute_process(COMMAND \"${CMAKE_OBJDUMP}\" --private-headers \"\${file}\"
            OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
        string(REGEX MATCHALL \"DLL Name: [^\\r\\n]+\" entries \"\${headers}\")
        foreach(entry IN LISTS entries)
            string(REPLACE \"DLL Name: \" \"${RYX_WINDOWS_SDK}/bin/\" library \"\${entry}\")
            if(EXISTS \"\${library}\" AND NOT library IN_LIST libraries)
                list(APPEND libraries \"\${library}\")
                list(APPEND unread \"\${library}\")
            endif()
        endforeach()
    endwhile()
    file(INSTALL DESTINATION \"\${CMAKE_INSTALL_PREFIX}\" TYPE SHARED_LIBRARY FILES \${libraries})
")

# Texts of Qt's own widgets, in the languages that the product has.
foreach(language IN LISTS RYX_LANGUAGES)
    install(FILES "/usr/share/qt5/translations/qtbase_${language}.qm" DESTINATION translations)
endforeach()

# The licence texts as Debian's packages of the same sources carry them.
install(FILES "${CMAKE_SOURCE_DIR}/LICENSE" DESTINATION licences RENAME velmora-ryx.txt)
install(FILES "${folder}/third-party.txt" DESTINATION licences)
foreach(entry IN ITEMS qtbase=libqt5core5a qtsvg=libqt5svg5 qttranslations=qttranslations5-l10n
        jsoncpp=libjsoncpp25 glog=libgoogle-glog0v6 libzip=libzip4 zlib=zlib1g
        gcc-runtime=gcc-mingw-w64-x86-64-posix-runtime mingw-w64=mingw-w64-x86-64-dev)
    string(REPLACE "=" ";" entry "${entry}")
    list(GET entry 0 library)
    list(GET entry 1 package)
    install(FILES "/usr/share/doc/${package}/copyright" DESTINATION licences RENAME "${library}.txt")
endforeach()
foreach(licence IN ITEMS Apache-2.0 Artistic GFDL-1.2 GFDL-1.3 GPL-2 GPL-3 LGPL-2 LGPL-2.1 LGPL-3 MPL-2.0)
    install(FILES "/usr/share/common-licenses/${licence}" DESTINATION licences/common RENAME "${licence}.txt")
endforeach()
