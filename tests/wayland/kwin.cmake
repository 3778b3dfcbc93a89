# KWin: kwin_keys (keys through KWin's fake-input protocol) and the end-to-end test of the lock
# under a headless kwin_wayland. Included from this folder's CMakeLists.txt; adds nothing when
# wayland-scanner, libwayland-client or plasma-wayland-protocols' fake-input.xml is missing.
find_package(PkgConfig QUIET)
find_package(PlasmaWaylandProtocols QUIET)
find_program(TARVANEL_KWIN_SCANNER wayland-scanner)
find_file(TARVANEL_KWIN_FAKE_INPUT_XML fake-input.xml
    HINTS ${PLASMA_WAYLAND_PROTOCOLS_DIR}
    PATHS /usr/share/plasma-wayland-protocols /usr/local/share/plasma-wayland-protocols
    NO_DEFAULT_PATH)
if(PkgConfig_FOUND)
    pkg_check_modules(TARVANEL_KWIN_WL QUIET IMPORTED_TARGET wayland-client)
endif()

if(TARVANEL_KWIN_SCANNER AND TARVANEL_KWIN_FAKE_INPUT_XML AND TARVANEL_KWIN_WL_FOUND)
    set(kwin_generated ${CMAKE_CURRENT_BINARY_DIR}/kwin-fake-input)
    file(MAKE_DIRECTORY ${kwin_generated})
    add_custom_command(OUTPUT ${kwin_generated}/fake-input-client-protocol.h
        COMMAND ${TARVANEL_KWIN_SCANNER} client-header ${TARVANEL_KWIN_FAKE_INPUT_XML}
            ${kwin_generated}/fake-input-client-protocol.h
        DEPENDS ${TARVANEL_KWIN_FAKE_INPUT_XML} VERBATIM)
    add_custom_command(OUTPUT ${kwin_generated}/fake-input-protocol.c
        COMMAND ${TARVANEL_KWIN_SCANNER} private-code ${TARVANEL_KWIN_FAKE_INPUT_XML}
            ${kwin_generated}/fake-input-protocol.c
        DEPENDS ${TARVANEL_KWIN_FAKE_INPUT_XML} VERBATIM)
    add_executable(kwin_keys ${CMAKE_CURRENT_LIST_DIR}/kwin_keys.c
        ${kwin_generated}/fake-input-client-protocol.h ${kwin_generated}/fake-input-protocol.c)
    set_target_properties(kwin_keys PROPERTIES AUTOMOC OFF)
    target_include_directories(kwin_keys PRIVATE ${kwin_generated})
    target_link_libraries(kwin_keys PRIVATE PkgConfig::TARVANEL_KWIN_WL)

    # Skips itself (77) when kwin_wayland or spectacle is not installed. Run as root it makes
    # the user tarvanel-test and runs as that user, since KWin refuses some things to root.
    add_test(NAME KWinLock.EndToEnd
        COMMAND /usr/bin/python3 ${CMAKE_CURRENT_LIST_DIR}/kwin_lock_e2e.py
            --program $<TARGET_FILE:tarvanel> --keys $<TARGET_FILE:kwin_keys>)
    set_tests_properties(KWinLock.EndToEnd PROPERTIES
        TIMEOUT 300 SKIP_RETURN_CODE 77 LABELS kwin RUN_SERIAL TRUE)
endif()
