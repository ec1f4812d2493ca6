# ryx_show_on_screen(TEST [NAME=VALUE...]): gives a test what it needs to draw text, and the variables of Qt.
#
# On Windows, Qt's off-screen platform knows no fonts, so the test has windows on the real screen, one test at
# a time because they share the input focus. Wine hands variables of Qt on only with "WINE" before their names.
function(ryx_show_on_screen test)
    set(variables ${ARGN})
    if(WIN32)
        list(APPEND variables QT_QPA_PLATFORM=windows)
        set_tests_properties(${test} PROPERTIES RESOURCE_LOCK screen)
    endif()
    set(environment ${variables})
    if(CMAKE_CROSSCOMPILING)
        list(TRANSFORM variables PREPEND WINE OUTPUT_VARIABLE environment)
    endif()
    set_tests_properties(${test} PROPERTIES TIMEOUT 900 ENVIRONMENT "${environment}")
endfunction()
