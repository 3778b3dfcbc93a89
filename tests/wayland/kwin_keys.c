/* kwin_keys: presses keys on KWin through org_kde_kwin_fake_input, as a keyboard would.
 *
 * Usage: kwin_keys [-d MILLISECONDS] KEY...
 * KEY is a name (escape, tab, f4, a, 1, left...), a number (an evdev key code) or a chord
 * joined by '+' (super+2, ctrl+alt+left): the keys of a chord go down in order and come up in
 * reverse. Pointer steps too: "move:X,Y" puts the pointer at X,Y of the whole desktop, "click"
 * and "middleclick" press a button. Events are MILLISECONDS apart (default 60) so that the
 * compositor sees each one on its own. KWin offers the interface to any client only when started with
 * KWIN_WAYLAND_NO_PERMISSION_CHECKS=1. Exit status 0 once KWin has read every event. */
#include "fake-input-client-protocol.h"

#include <linux/input-event-codes.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <time.h>
#include <wayland-client.h>

static struct org_kde_kwin_fake_input *fake;

static void global(void *data, struct wl_registry *registry, uint32_t name,
                   const char *interface, uint32_t version) {
    (void)data;
    /* keyboard_key came with version 4 */
    if (strcmp(interface, org_kde_kwin_fake_input_interface.name) == 0 && version >= 4)
        fake = wl_registry_bind(registry, name, &org_kde_kwin_fake_input_interface, 4);
}

static void global_remove(void *data, struct wl_registry *registry, uint32_t name) {
    (void)data, (void)registry, (void)name;
}

static const struct wl_registry_listener registry_listener = {global, global_remove};

struct named { const char *name; int code; };

static const struct named names[] = {
    {"escape", KEY_ESC}, {"esc", KEY_ESC}, {"tab", KEY_TAB}, {"enter", KEY_ENTER},
    {"return", KEY_ENTER}, {"space", KEY_SPACE}, {"backspace", KEY_BACKSPACE},
    {"delete", KEY_DELETE}, {"insert", KEY_INSERT}, {"home", KEY_HOME}, {"end", KEY_END},
    {"pageup", KEY_PAGEUP}, {"pagedown", KEY_PAGEDOWN}, {"left", KEY_LEFT},
    {"right", KEY_RIGHT}, {"up", KEY_UP}, {"down", KEY_DOWN}, {"print", KEY_SYSRQ},
    {"super", KEY_LEFTMETA}, {"meta", KEY_LEFTMETA}, {"logo", KEY_LEFTMETA},
    {"alt", KEY_LEFTALT}, {"altgr", KEY_RIGHTALT}, {"ctrl", KEY_LEFTCTRL},
    {"control", KEY_LEFTCTRL}, {"shift", KEY_LEFTSHIFT}, {"minus", KEY_MINUS},
    {"equal", KEY_EQUAL}, {"comma", KEY_COMMA}, {"dot", KEY_DOT}, {"slash", KEY_SLASH},
    {"f1", KEY_F1}, {"f2", KEY_F2}, {"f3", KEY_F3}, {"f4", KEY_F4}, {"f5", KEY_F5},
    {"f6", KEY_F6}, {"f7", KEY_F7}, {"f8", KEY_F8}, {"f9", KEY_F9}, {"f10", KEY_F10},
    {"f11", KEY_F11}, {"f12", KEY_F12},
    {"1", KEY_1}, {"2", KEY_2}, {"3", KEY_3}, {"4", KEY_4}, {"5", KEY_5}, {"6", KEY_6},
    {"7", KEY_7}, {"8", KEY_8}, {"9", KEY_9}, {"0", KEY_0},
};

/* The evdev codes of the letters follow the keyboard's rows, not the alphabet. */
static const int letters[26] = {
    KEY_A, KEY_B, KEY_C, KEY_D, KEY_E, KEY_F, KEY_G, KEY_H, KEY_I, KEY_J, KEY_K, KEY_L, KEY_M,
    KEY_N, KEY_O, KEY_P, KEY_Q, KEY_R, KEY_S, KEY_T, KEY_U, KEY_V, KEY_W, KEY_X, KEY_Y, KEY_Z};

/* 0: not a pointer step; 2: a move; else the button to click */
static int pointer_step(const char *word, double *x, double *y) {
    if (strcmp(word, "click") == 0) return BTN_LEFT;
    if (strcmp(word, "middleclick") == 0) return BTN_MIDDLE;
    return sscanf(word, "move:%lf,%lf", x, y) == 2 ? 2 : 0;
}

static int key_code(const char *name) {
    if (strlen(name) == 1 && ((name[0] | 0x20) >= 'a' && (name[0] | 0x20) <= 'z'))
        return letters[(name[0] | 0x20) - 'a'];
    for (size_t i = 0; i < sizeof names / sizeof names[0]; ++i)
        if (strcasecmp(name, names[i].name) == 0) return names[i].code;
    char *end;
    /* a bare number of two digits or more is a key code; single digits are the digit keys */
    long code = strtol(name, &end, 10);
    if (*end == '\0' && end != name && code > 0 && code < KEY_MAX) return (int)code;
    return -1;
}

static void pause_ms(long ms) {
    struct timespec t = {ms / 1000, (ms % 1000) * 1000000L};
    nanosleep(&t, NULL);
}

/* down < 0: only sends what is queued and waits */
static void send_key(struct wl_display *display, int code, int down, long gap) {
    if (down >= 0) org_kde_kwin_fake_input_keyboard_key(fake, (uint32_t)code, down ? 1 : 0);
    wl_display_flush(display);
    pause_ms(gap);
}

int main(int argc, char **argv) {
    long gap = 60;
    int first = 1;
    if (argc > 2 && strcmp(argv[1], "-d") == 0) {
        gap = atol(argv[2]);
        first = 3;
    }
    if (first >= argc) {
        fprintf(stderr, "usage: kwin_keys [-d MILLISECONDS] KEY[+KEY...]...\n");
        return 2;
    }
    /* Check every name before sending anything: half a chord would leave a key held down. */
    double x, y;
    for (int i = first; i < argc; ++i) {
        char copy[256];
        if (pointer_step(argv[i], &x, &y)) continue;
        snprintf(copy, sizeof copy, "%s", argv[i]);
        for (char *k = strtok(copy, "+"); k; k = strtok(NULL, "+"))
            if (key_code(k) < 0) {
                fprintf(stderr, "kwin_keys: unknown key \"%s\"\n", k);
                return 2;
            }
    }
    struct wl_display *display = wl_display_connect(NULL);
    if (!display) {
        fprintf(stderr, "kwin_keys: no Wayland display\n");
        return 1;
    }
    struct wl_registry *registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &registry_listener, NULL);
    wl_display_roundtrip(display);
    if (!fake) {
        fprintf(stderr, "kwin_keys: the compositor offers no org_kde_kwin_fake_input v4 "
                        "(KWin needs KWIN_WAYLAND_NO_PERMISSION_CHECKS=1)\n");
        return 1;
    }
    org_kde_kwin_fake_input_authenticate(fake, "kwin_keys", "tests press keys");
    wl_display_roundtrip(display);
    for (int i = first; i < argc; ++i) {
        char copy[256];
        int chord[16], n = 0;
        const int pointer = pointer_step(argv[i], &x, &y);
        if (pointer == 2) {
            org_kde_kwin_fake_input_pointer_motion_absolute(fake, wl_fixed_from_double(x),
                                                            wl_fixed_from_double(y));
            send_key(display, 0, -1, gap);
            continue;
        }
        if (pointer) {
            org_kde_kwin_fake_input_button(fake, (uint32_t)pointer, 1);
            send_key(display, 0, -1, gap);
            org_kde_kwin_fake_input_button(fake, (uint32_t)pointer, 0);
            send_key(display, 0, -1, gap);
            continue;
        }
        snprintf(copy, sizeof copy, "%s", argv[i]);
        for (char *k = strtok(copy, "+"); k && n < 16; k = strtok(NULL, "+"))
            chord[n++] = key_code(k);
        for (int j = 0; j < n; ++j) send_key(display, chord[j], 1, gap);
        for (int j = n - 1; j >= 0; --j) send_key(display, chord[j], 0, gap);
    }
    /* Returns once KWin has read every request, so the next step sees their effects. */
    int ok = wl_display_roundtrip(display) >= 0;
    org_kde_kwin_fake_input_destroy(fake);
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    return ok ? 0 : 1;
}
