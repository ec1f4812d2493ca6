target_sources(ryx_user_objects PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/CrashRecords.cpp
    ${CMAKE_CURRENT_LIST_DIR}/LoggerGuard.cpp
    ${CMAKE_CURRENT_LIST_DIR}/SentryGuard.cpp)

# Crash reporting is built in where sentry-native is at hand; its paths are wide on Windows only.
find_package(sentry QUIET)
if(sentry_FOUND)
    include(CheckCXXSymbolExists)
    set(CMAKE_REQUIRED_LIBRARIES sentry::sentry)
    check_cxx_symbol_exists(sentry_options_set_database_pathw sentry.h RYX_SENTRY_WIDE_PATH)
    unset(CMAKE_REQUIRED_LIBRARIES)
    target_link_libraries(ryx_user_objects PUBLIC sentry::sentry)
    target_compile_definitions(ryx_user_objects PRIVATE RYX_SENTRY
        $<$<BOOL:${RYX_SENTRY_WIDE_PATH}>:RYX_SENTRY_WIDE_PATH>)
endif()
