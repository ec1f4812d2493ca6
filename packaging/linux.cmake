# What of the built programs is installed on Linux. The stand-in agent goes along: there is no other one.
set(folder "${CMAKE_CURRENT_LIST_DIR}/linux")
set(programs lib/velmora-ryx)
set_target_properties(velmora-ryx ryx-capture ryx-agent PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS velmora-ryx ryx-capture ryx-agent ryx_user DESTINATION ${programs})
install(CODE "file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
    file(CREATE_LINK ../${programs}/velmora-ryx \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin/velmora-ryx\" SYMBOLIC)")

install(FILES "${CMAKE_SOURCE_DIR}/src/resources/common/desktop.svg" DESTINATION share/icons/hicolor/scalable/apps
    RENAME velmora-ryx.svg)
configure_file("${folder}/velmora-ryx.desktop.in" "${CMAKE_BINARY_DIR}/velmora-ryx.desktop" @ONLY)
install(FILES "${CMAKE_BINARY_DIR}/velmora-ryx.desktop" DESTINATION share/applications)
install(FILES "${CMAKE_SOURCE_DIR}/LICENSE" DESTINATION share/doc/velmora-ryx RENAME copyright)
configure_file("${folder}/autostart.desktop.in" "${CMAKE_BINARY_DIR}/autostart.desktop" @ONLY)
install(FILES "${CMAKE_BINARY_DIR}/autostart.desktop" DESTINATION /etc/xdg/autostart RENAME velmora-ryx.desktop)
install(DIRECTORY DESTINATION /etc/velmora-ryx)
install(FILES "${folder}/ryx-agent.service" DESTINATION lib/systemd/system)
install(FILES "${folder}/velmora-ryx.service" DESTINATION lib/systemd/user)
