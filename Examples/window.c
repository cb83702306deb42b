// A host in C: it answers what a person in front of the panel asks for.
#include <Orvo/orvo_widgets.h>
#include <stdio.h>

static void on_mute(void *panel, int32_t event, const orvo_value *arguments, size_t count) {
    (void)event, (void)count;
    const orvo_value channel = *orvo_argument(arguments, 0);
    orvo_value muted = ORVO_VALUE_INIT;
    orvo_invoke(panel, ORVO_MEMBER_Mute, ORVO_GET, &channel, 1, &muted, NULL);
    const orvo_value change[] = {channel, orvo_boolean(!muted.as.boolean)};
    orvo_invoke(panel, ORVO_MEMBER_Mute, ORVO_LET, change, 2, NULL, NULL);
}

int main(void) {
    orvo_panel *panel = NULL;
    orvo_error error = ORVO_ERROR_INIT;
    if (orvo_window_create(NULL, &panel, &error) != 0) {
        fprintf(stderr, "%d: %s\n", (int)error.number, error.text);
        return 1;
    }
    const orvo_value connected = orvo_boolean(1);
    orvo_invoke(panel, ORVO_MEMBER_Connected, ORVO_LET, &connected, 1, NULL, NULL);
    orvo_subscribe(panel, ORVO_EVENT_Mute, on_mute, panel, NULL, NULL);
    orvo_window_show(panel, NULL);
    orvo_run();
    return orvo_destroy(panel, NULL);
}
