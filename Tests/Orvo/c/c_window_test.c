// A host in C puts a panel up in a window, with an application of the library's own.
#include <Orvo/orvo_widgets.h>

#include "expect.h"

struct window {
    orvo_panel *panel;
};

static void close_it(void *user, int32_t event, const orvo_value *arguments, size_t count) {
    struct window *window = user;
    (void)event, (void)arguments, (void)count;
    EXPECT(orvo_destroy(window->panel, NULL) == 0);
    window->panel = NULL;
}

int main(void) {
    struct window one = {NULL};
    orvo_panel *other = NULL;
    orvo_panel *plain = NULL;
    EXPECT(orvo_window_create(NULL, &one.panel, NULL) == 0);
    EXPECT(orvo_window_create(NULL, &other, NULL) == 0);
    EXPECT(orvo_create(NULL, &plain, NULL) == 0);
    EXPECT(orvo_window_show(plain, NULL) == ORVO_NO_PANEL && !orvo_window_is_shown(plain));

    EXPECT(orvo_window_set_title(one.panel, "Hall", NULL) == 0);
    EXPECT(orvo_window_set_title(one.panel, NULL, NULL) == ORVO_BAD_ARGUMENT);
    EXPECT(orvo_window_set_zoom(one.panel, 1.5, NULL) == 0 && !orvo_window_is_shown(one.panel));
    EXPECT(orvo_window_show(one.panel, NULL) == 0 && orvo_window_is_shown(one.panel));

    // The clock goes on by itself: the test temperature is repeated until the host ends the panel.
    EXPECT(orvo_perform(one.panel, ORVO_SLIDE, "ZelvinSlider3", 40, NULL, NULL) == 0);
    EXPECT(orvo_subscribe(one.panel, ORVO_EVENT_SetTemp, close_it, &one, NULL, NULL) == 0);
    orvo_process_events(1);
    EXPECT(one.panel != NULL);
    orvo_run();
    EXPECT(one.panel == NULL);

    EXPECT(orvo_destroy(other, NULL) == 0 && orvo_destroy(plain, NULL) == 0);
    return failures;
}
