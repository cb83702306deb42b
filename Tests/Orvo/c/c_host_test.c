// A host in C does with a panel what hosts do, and what they shouldn't.
#include <Orvo/orvo.h>
#include <stdlib.h>
#include <string.h>
#include <threads.h>

#include "expect.h"

struct host {
    orvo_panel *panel;
    uint32_t subscription;
    int mutes;
    int volume;
    int others;
};

static int32_t let(orvo_panel *panel, int32_t member, orvo_value index, orvo_value value) {
    const orvo_value arguments[] = {index, value};
    return orvo_invoke(panel, member, ORVO_LET, arguments, 2, NULL, NULL);
}

static int mute_of(orvo_panel *panel, int16_t channel) {
    const orvo_value index = orvo_integer(channel);
    orvo_value result = ORVO_VALUE_INIT;
    EXPECT(orvo_invoke(panel, ORVO_MEMBER_Mute, ORVO_GET, &index, 1, &result, NULL) == 0);
    EXPECT(result.type == ORVO_BOOLEAN);
    return result.as.boolean;
}

static int32_t click(orvo_panel *panel, const char *widget) {
    return orvo_perform(panel, ORVO_CLICK, widget, 0, NULL, NULL);
}

// Clicks another channel's button when it is told of channel 1.
static void on_mute(void *user, int32_t event, const orvo_value *arguments, size_t count) {
    struct host *host = user;
    EXPECT(event == ORVO_EVENT_Mute && count == 1);
    const int16_t channel = orvo_argument(arguments, 0)->as.integer;
    ++host->mutes;
    if (channel == 1) EXPECT(click(host->panel, "Command14") == 0 && mute_of(host->panel, 3) == -1);
    EXPECT(let(host->panel, ORVO_MEMBER_Mute, orvo_integer(channel), orvo_boolean(1)) == 0);
}

static void on_any(void *user, int32_t event, const orvo_value *arguments, size_t count) {
    struct host *host = user;
    if (event == ORVO_EVENT_VolumeChange && count == 2)
        host->volume = orvo_argument(arguments, 1)->as.integer;
    else
        ++host->others;
}

static void unsubscribe_itself(void *user, int32_t event, const orvo_value *arguments,
                               size_t count) {
    struct host *host = user;
    (void)event, (void)arguments, (void)count;
    EXPECT(orvo_unsubscribe(host->panel, host->subscription, NULL) == 0);
    ++host->others;
}

static void destroy(void *user, int32_t event, const orvo_value *arguments, size_t count) {
    struct host *host = user;
    (void)event, (void)arguments, (void)count;
    EXPECT(orvo_destroy(host->panel, NULL) == 0);
    host->panel = NULL;
}

static void hears_events_within_events(struct host *host) {
    EXPECT(orvo_subscribe(host->panel, ORVO_EVENT_Mute, on_mute, host, NULL, NULL) == 0);
    EXPECT(orvo_subscribe(host->panel, ORVO_ALL_EVENTS, on_any, host, NULL, NULL) == 0);
    EXPECT(click(host->panel, "Command12") == 0);
    EXPECT(host->mutes == 2 && host->others == 2 && mute_of(host->panel, 1) == -1);
    EXPECT(orvo_perform(host->panel, ORVO_SLIDE, "ZelvinSlider1", 10, NULL, NULL) == 0);
    EXPECT(host->volume == 10);
    // The test temperature is repeated every 1500 ms.
    EXPECT(orvo_perform(host->panel, ORVO_SLIDE, "ZelvinSlider3", 40, NULL, NULL) == 0);
    host->others = 0;
    EXPECT(orvo_advance(host->panel, 3000, NULL) == 0 && host->others == 2);
}

static void stops_being_told_within_an_event(struct host *host) {
    host->others = 0;
    EXPECT(orvo_subscribe(host->panel, ORVO_EVENT_OnOff, unsubscribe_itself, host,
                          &host->subscription, NULL) == 0);
    EXPECT(click(host->panel, "cmdOnOff") == 0 && host->others == 2);
    EXPECT(click(host->panel, "cmdOnOff") == 0 && host->others == 3);
    EXPECT(orvo_unsubscribe(host->panel, host->subscription, NULL) == ORVO_BAD_ARGUMENT);
}

static void is_told_what_is_wrong(struct host *host) {
    orvo_panel *const panel = host->panel;
    const orvo_value one = orvo_integer(1);
    orvo_error error = ORVO_ERROR_INIT;
    const struct {
        const char *label;
        orvo_value argument;
        int32_t member, kind, number;
    } rows[] = {
        {"negative", orvo_integer(-5), ORVO_MEMBER_VNPower, ORVO_LET, 13},
        {"too large", orvo_long(40000), ORVO_MEMBER_IdDevice, ORVO_LET, 6},
        {"no number", orvo_string("x", 1), ORVO_MEMBER_IdDevice, ORVO_LET, 13},
        {"write-only", one, ORVO_MEMBER_Connected, ORVO_GET, 394},
        {"read-only", one, ORVO_MEMBER_VolumeSliderButtonDown, ORVO_LET, 383},
        {"no member", one, 17, ORVO_METHOD, 438},
        {"no kind", one, ORVO_MEMBER_Mute, 3, ORVO_BAD_ARGUMENT},
        {"no row", orvo_integer(9), ORVO_MEMBER_chkTest, ORVO_GET, 340},
        {"no type", {sizeof one, 99, {0}}, ORVO_MEMBER_IdDevice, ORVO_LET, ORVO_BAD_ARGUMENT},
        {"too small", {sizeof one - 1, ORVO_INTEGER, {1}}, ORVO_MEMBER_IdDevice, ORVO_LET,
         ORVO_BAD_ARGUMENT},
        {"no text", orvo_string(NULL, 3), ORVO_MEMBER_AggiugiTesto, ORVO_METHOD, ORVO_BAD_ARGUMENT},
    };
    for (size_t i = 0; i < sizeof rows / sizeof *rows; ++i) {
        const orvo_value arguments[] = {one, rows[i].argument};
        const size_t first = rows[i].member == ORVO_MEMBER_VNPower ? 0 : 1;
        const int32_t number = orvo_invoke(panel, rows[i].member, rows[i].kind, arguments + first,
                                           2 - first, NULL, &error);
        if (number != rows[i].number || error.number != number || error.text[0] == '\0')
            (void)fprintf(stderr, "%s: %d %s\n", rows[i].label, (int)number, error.text), ++failures;
    }
    EXPECT(orvo_invoke(panel, ORVO_MEMBER_Mute, ORVO_GET, NULL, 0, NULL, NULL) == 450);
    EXPECT(orvo_invoke(panel, ORVO_MEMBER_Mute, ORVO_GET, NULL, 1, NULL, NULL) == ORVO_BAD_ARGUMENT);
    EXPECT(orvo_invoke(NULL, ORVO_MEMBER_Mute, ORVO_GET, &one, 1, NULL, NULL) == ORVO_NO_PANEL);
    EXPECT(orvo_create(NULL, NULL, NULL) == ORVO_BAD_ARGUMENT);
    EXPECT(orvo_subscribe(panel, 15, on_any, host, NULL, NULL) == ORVO_BAD_ARGUMENT);
    EXPECT(orvo_subscribe(panel, 1, NULL, host, NULL, NULL) == ORVO_BAD_ARGUMENT);
    EXPECT(orvo_advance(panel, -1, NULL) == ORVO_BAD_ARGUMENT);
    EXPECT(click(panel, "Command99") == ORVO_BAD_ARGUMENT);
    EXPECT(orvo_perform(panel, ORVO_KEY, "List1", 0x10000, NULL, NULL) == ORVO_BAD_ARGUMENT);
}

static void understands_structs_of_other_versions(orvo_panel *panel) {
    struct {
        orvo_value value;
        int64_t later;
    } arguments[2] = {{orvo_integer(3), 1}, {orvo_boolean(1), 1}}, result = {ORVO_VALUE_INIT, 7};
    arguments[0].value.size = arguments[1].value.size = result.value.size = sizeof result;
    EXPECT(orvo_invoke(panel, ORVO_MEMBER_Mute, ORVO_LET, &arguments[0].value, 2, NULL, NULL) == 0);
    EXPECT(orvo_invoke(panel, ORVO_MEMBER_Mute, ORVO_GET, &arguments[0].value, 1, &result.value,
                       NULL) == 0);
    EXPECT(result.value.as.boolean == -1 && result.later == 7 && result.value.size == sizeof result);

    orvo_error error = ORVO_ERROR_INIT;
    error.size = 8 + 5;
    memset(error.text, '#', sizeof error.text);
    EXPECT(orvo_destroy(NULL, &error) == 0 && orvo_advance(NULL, 0, &error) == ORVO_NO_PANEL);
    EXPECT(strcmp(error.text, "Ther") == 0 && error.text[5] == '#');
    error.size = 8;
    error.number = 5;
    EXPECT(orvo_advance(NULL, 0, &error) == ORVO_NO_PANEL && error.number == 5);
}

static void draws_traces_and_gets_texts(orvo_panel *panel) {
    const int16_t samples[] = {128, 200, 60};
    const orvo_value trace = orvo_integer_array(samples, 3, 1);
    const orvo_value arguments[] = {orvo_integer(4), trace};
    orvo_value unsized[] = {orvo_integer(4), trace};
    unsized[1].as.array.dimensions = 0;
    const int32_t member = ORVO_MEMBER_DisegnaFormaDOnda;
    EXPECT(orvo_invoke(panel, member, ORVO_METHOD, arguments, 2, NULL, NULL) == 0);
    EXPECT(orvo_invoke(panel, member, ORVO_METHOD, unsized, 2, NULL, NULL) == 9);

    const orvo_value text = orvo_string("Zo\xC3\xAB\0 and more", 13);
    orvo_value result = ORVO_VALUE_INIT;
    EXPECT(orvo_invoke(panel, ORVO_MEMBER_TrimStr, ORVO_METHOD, &text, 1, &result, NULL) == 0);
    EXPECT(result.type == ORVO_STRING && result.as.string.length == 4);
    EXPECT(strcmp(result.as.string.text, "Zo\xC3\xAB") == 0);
    orvo_clear(&result);
    orvo_clear(&result);
    EXPECT(result.type == ORVO_NONE);
}

static int call_from_elsewhere(void *panel) {
    return orvo_advance(panel, 1, NULL) == 1001 && orvo_destroy(panel, NULL) == 1001;
}

static void stays_on_its_thread(orvo_panel *panel) {
    thrd_t thread;
    int refused = 0;
    EXPECT(thrd_create(&thread, call_from_elsewhere, panel) == thrd_success);
    EXPECT(thrd_join(thread, &refused) == thrd_success && refused);
}

static void ends_the_panel_within_an_event(struct host *host) {
    EXPECT(orvo_subscribe(host->panel, ORVO_EVENT_DownLoad, destroy, host, NULL, NULL) == 0);
    EXPECT(orvo_subscribe(host->panel, ORVO_EVENT_DownLoad, on_any, host, NULL, NULL) == 0);
    host->others = 0;
    // `on_any` was there before, and hears it; the second one would have come after the end.
    EXPECT(click(host->panel, "cmdReadInData") == 0 && host->panel == NULL && host->others == 1);
}

int main(void) {
    struct host host = {0};
    orvo_options options = ORVO_OPTIONS_INIT;
    EXPECT(orvo_member_id("vpPOWER") == ORVO_MEMBER_VPPower && orvo_member_id("x") == 0);
    EXPECT(orvo_event_id("Help") == ORVO_EVENT_Help && orvo_event_id(NULL) == 0);
    options.ports = 7;
    EXPECT(orvo_create(&options, &host.panel, NULL) == ORVO_BAD_ARGUMENT && host.panel == NULL);
    options.ports = ORVO_PORTS_DEVICES;
    EXPECT(orvo_create(&options, &host.panel, NULL) == 0);
    hears_events_within_events(&host);
    stops_being_told_within_an_event(&host);
    is_told_what_is_wrong(&host);
    understands_structs_of_other_versions(host.panel);
    draws_traces_and_gets_texts(host.panel);
    stays_on_its_thread(host.panel);
    ends_the_panel_within_an_event(&host);
    return failures;
}
