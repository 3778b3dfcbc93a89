# Trixie.*: tests in a Debian 13 root. Trixie.ProgramBuildsAndPrintsTimes: the program builds in a Debian 13 root (Qt 6.8, the Wayland
# compositors with session lock) and prints prayer times there as a non-root user.
# It needs root (debootstrap, chroot, mounts) and Debian's mirror: registered when CMake runs as
# root (CI) or with TARVANEL_TRIXIE=1 in the environment of CMake (then run through sudo -n);
# skipped when the mirror is out of reach. The root is shared by every clone on the machine
# (trixie-root.sh), so only the first run is slow. Run alone with: ctest -L trixie
execute_process(COMMAND id -u OUTPUT_VARIABLE _tarvanel_uid OUTPUT_STRIP_TRAILING_WHITESPACE)
if(_tarvanel_uid STREQUAL "0" OR "$ENV{TARVANEL_TRIXIE}" STREQUAL "1")
    set(_tarvanel_as_root)
    if(NOT _tarvanel_uid STREQUAL "0")
        set(_tarvanel_as_root sudo -n --preserve-env=TARVANEL_TRIXIE_ROOT,TARVANEL_TRIXIE_MIRROR)
    endif()
    add_test(NAME Trixie.ProgramBuildsAndPrintsTimes
        COMMAND ${_tarvanel_as_root} ${CMAKE_CURRENT_LIST_DIR}/trixie-times-test.sh
            ${PROJECT_SOURCE_DIR})
    # From nothing about 10 minutes on 2 cores (debootstrap 1, packages 3, build 6); then seconds.
    # Not serial: its build runs under nice beside the other tests, which keeps CI shorter.
    set_tests_properties(Trixie.ProgramBuildsAndPrintsTimes PROPERTIES
        LABELS trixie SKIP_RETURN_CODE 77 TIMEOUT 3600)
    # What the Wayland lock tests rely on in the root: sway and labwc headless offer the session
    # lock, outputs come and go, grim captures, a killed locker leaves the outputs locked.
    add_test(NAME Trixie.CompositorsOfferSessionLock
        COMMAND ${_tarvanel_as_root} bash -c
            [=["$0" prepare && "$0" user-run /src/tests/wayland/trixie-compositors-check.sh]=]
            ${CMAKE_CURRENT_LIST_DIR}/trixie-root.sh)
    set_tests_properties(Trixie.CompositorsOfferSessionLock PROPERTIES
        LABELS trixie SKIP_RETURN_CODE 77 TIMEOUT 3600)
    # The lock on Debian 13's sway 1.10 and labwc 0.8, which offer the session lock: the same
    # attacks and kill as on the host (lock_e2e.py), serial because its samples are timed.
    foreach(compositor sway labwc)
        foreach(scenario attacks kill)
            set(_name Trixie.WaylandLockEndToEnd.${compositor}.${scenario})
            add_test(NAME ${_name} COMMAND ${_tarvanel_as_root}
                ${CMAKE_CURRENT_LIST_DIR}/trixie-lock-test.sh ${PROJECT_SOURCE_DIR} ${compositor}
                ${scenario})
            set_tests_properties(${_name} PROPERTIES
                LABELS trixie SKIP_RETURN_CODE 77 TIMEOUT 3600 RUN_SERIAL TRUE)
        endforeach()
    endforeach()
endif()
