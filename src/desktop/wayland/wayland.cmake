# The Wayland lock backends talk to the compositor on a connection of their own, with client
# code generated from the protocol files (wayland-protocols' and the wlr ones kept here).
pkg_check_modules(WAYLAND REQUIRED IMPORTED_TARGET wayland-client xkbcommon)
pkg_get_variable(WAYLAND_PROTOCOLS_DIR wayland-protocols pkgdatadir)
pkg_get_variable(WAYLAND_SCANNER wayland-scanner wayland_scanner)
set(tarvanel_wayland_protocols
    ${WAYLAND_PROTOCOLS_DIR}/staging/ext-session-lock/ext-session-lock-v1.xml
    ${WAYLAND_PROTOCOLS_DIR}/stable/xdg-shell/xdg-shell.xml
    ${WAYLAND_PROTOCOLS_DIR}/unstable/keyboard-shortcuts-inhibit/keyboard-shortcuts-inhibit-unstable-v1.xml
    ${CMAKE_CURRENT_SOURCE_DIR}/wayland/protocols/wlr-layer-shell-unstable-v1.xml
    ${CMAKE_CURRENT_SOURCE_DIR}/wayland/protocols/wlr-input-inhibitor-unstable-v1.xml)
set(tarvanel_wayland_generated_dir ${CMAKE_CURRENT_BINARY_DIR}/wayland-protocols)
file(MAKE_DIRECTORY ${tarvanel_wayland_generated_dir})
set(tarvanel_wayland_generated)
foreach(xml ${tarvanel_wayland_protocols})
    get_filename_component(name ${xml} NAME_WE)
    set(header ${tarvanel_wayland_generated_dir}/${name}-client.h)
    set(code ${tarvanel_wayland_generated_dir}/${name}.c)
    add_custom_command(OUTPUT ${header} COMMAND ${WAYLAND_SCANNER} client-header ${xml} ${header}
        DEPENDS ${xml} VERBATIM)
    add_custom_command(OUTPUT ${code} COMMAND ${WAYLAND_SCANNER} private-code ${xml} ${code}
        DEPENDS ${xml} VERBATIM)
    list(APPEND tarvanel_wayland_generated ${header} ${code})
endforeach()
add_library(tarvanel_wayland_protocols STATIC ${tarvanel_wayland_generated})
set_target_properties(tarvanel_wayland_protocols PROPERTIES LINKER_LANGUAGE C AUTOMOC OFF)
target_include_directories(tarvanel_wayland_protocols PUBLIC ${tarvanel_wayland_generated_dir})
target_link_libraries(tarvanel_wayland_protocols PUBLIC PkgConfig::WAYLAND)
