#ifndef ORVO_ORVO_H
#define ORVO_ORVO_H

// It is C. NOLINTBEGIN(modernize-*,readability-identifier-naming)
#include <stddef.h>
#include <stdint.h>

#include "Orvo/export.h"
#include "Orvo/orvo_ids.h"

/// @file
/// The front panel of a four-channel power amplifier, for hosts in C and in languages that call C.
///
/// A panel is opaque. It is made by `orvo_create`, without a window and with a clock that only
/// `orvo_advance` moves, or by `orvo_window_create` of <Orvo/orvo_widgets.h>, and serves all
/// functions of this header either way. All calls come from the thread that made it; error 1001 on
/// any other, and nothing is changed. A handler may call everything here, and destroy the panel.
///
/// Every function that returns a number returns 0 when it is done, otherwise the number of the
/// error that ended it: the panel's run-time error, 7 when memory runs out, or one of `orvo_fault`.
/// Its `error`, if there is one, is then told the number and a text. No function throws; a handler
/// must neither throw nor leave by longjmp.
///
/// Every struct begins with its size, by which a library and a host of different versions
/// understand each other: whoever makes one sets it to the size that it has there (the macros and
/// functions below do). Text is UTF-8 with a length, and may contain NUL; what is ill-formed
/// becomes U+FFFD.

#ifdef __cplusplus
extern "C" {
#endif

typedef struct orvo_panel orvo_panel;

/// What only this door complains of.
enum orvo_fault {
    ORVO_FAILURE = 1003,      ///< what nobody foresaw
    ORVO_NO_PANEL = 1101,     ///< the panel is NULL, or has no window where one is needed
    ORVO_BAD_ARGUMENT = 1102  ///< a NULL, a size, a type or a number that isn't taken there
};

typedef struct orvo_error {
    uint32_t size;
    int32_t number;
    char text[120];  ///< ends with a NUL; what there is no room for is cut off
} orvo_error;
#define ORVO_ERROR_INIT              \
    {                                \
        sizeof(orvo_error), 0, { 0 } \
    }

/// An argument or a result, of one of the types of `orvo_type`.
typedef struct orvo_value {
    uint32_t size;
    int32_t type;
    union {
        int16_t boolean;       ///< ORVO_BOOLEAN: 0 is false, and -1 true; all 16 bits are passed on
        int16_t integer;       ///< ORVO_INTEGER
        int32_t long_integer;  ///< ORVO_LONG
        double number;         ///< ORVO_NUMBER
        struct {
            const char* text;
            size_t length;  ///< in bytes
        } string;           ///< ORVO_STRING
        struct {
            const int16_t* elements;
            size_t count;
            int32_t lower;       ///< the index of the first element
            int32_t dimensions;  ///< 1, or 0 for an array that has not been sized yet
        } array;                 ///< ORVO_INTEGER_ARRAY
    } as;
} orvo_value;
#define ORVO_VALUE_INIT                      \
    {                                        \
        sizeof(orvo_value), ORVO_NONE, { 0 } \
    }

/// What a panel is given of the machine, for the member GetAvailablePorts.
enum orvo_ports {
    ORVO_PORTS_NONE,     ///< it knows no ports
    ORVO_PORTS_DEVICES,  ///< this machine's devices; it never waits
    ORVO_PORTS_SERVERS   ///< print servers as well: up to two seconds for one that doesn't answer
};

typedef struct orvo_options {
    uint32_t size;
    int32_t ports;  ///< one of `orvo_ports`
} orvo_options;
#define ORVO_OPTIONS_INIT \
    { sizeof(orvo_options), ORVO_PORTS_NONE }

/// Is told of an event: its id, and its arguments until it returns; see `orvo_argument`.
typedef void (*orvo_event_handler)(void* user, int32_t event, const orvo_value* arguments,
                                   size_t count);
/// Is told of an error that nobody waits for, such as one that ended the handling of a click.
typedef void (*orvo_error_handler)(void* user, int32_t number, const char* text);

/// Makes a panel, and runs its start-up. `options` may be NULL.
ORVO_EXPORT int32_t orvo_create(const orvo_options* options, orvo_panel** panel, orvo_error* error);

/// Ends a panel with all its subscriptions, also from within a handler: the one that is running is
/// the last then. NULL is no error.
ORVO_EXPORT int32_t orvo_destroy(orvo_panel* panel, orvo_error* error);

/// Calls a member: `kind` is one of `orvo_kind`, the last argument of a let is the new value. The
/// panel converts the arguments. `result` may be NULL; otherwise it is overwritten when the call is
/// done, and the host gives it to `orvo_clear` sometime.
///
/// Error 438 for an id that no member has, 383 and 394 for a property that can only be read or
/// written, 450 for a wrong number of arguments, 13 and 6 for one that can't be converted.
ORVO_EXPORT int32_t orvo_invoke(orvo_panel* panel, int32_t member, int32_t kind,
                                const orvo_value* arguments, size_t count, orvo_value* result,
                                orvo_error* error);

/// Frees what a result of `orvo_invoke` holds, which is no value then; that of another version,
/// too.
ORVO_EXPORT void orvo_clear(orvo_value* result);

#define ORVO_ALL_EVENTS 0
/// Has a handler told of an event, or of all; of one event they are told in the order in which they
/// subscribed. `subscription` may be NULL.
ORVO_EXPORT int32_t orvo_subscribe(orvo_panel* panel, int32_t event, orvo_event_handler handler,
                                   void* user, uint32_t* subscription, orvo_error* error);
ORVO_EXPORT int32_t orvo_unsubscribe(orvo_panel* panel, uint32_t subscription, orvo_error* error);

/// Without a handler, which NULL brings back, these errors are written to standard error.
ORVO_EXPORT int32_t orvo_on_error(orvo_panel* panel, orvo_error_handler handler, void* user,
                                  orvo_error* error);

/// Lets time pass, from 0 milliseconds: every timer that comes due ticks, in order.
ORVO_EXPORT int32_t orvo_advance(orvo_panel* panel, int64_t milliseconds, orvo_error* error);

/// What a person does to a widget, for a host's tests.
enum orvo_deed {
    ORVO_CLICK,     ///< with the left mouse button
    ORVO_ACTIVATE,  ///< from the keyboard
    ORVO_KEY,       ///< `number` is the code of the character, 0 to 65535
    ORVO_PICK,      ///< `text` is an item of a combo box; it ends with a NUL
    ORVO_SLIDE,     ///< a slider is held, moved to the position `number` and let go
    ORVO_HOLD,
    ORVO_DROP,
    ORVO_TAB  ///< the tab `number`, from 0
};
/// Does it to the widget with this name in the layout, which ignores it when it is hidden, disabled
/// or of another kind. Prompts are cancelled, unless a window asks them.
ORVO_EXPORT int32_t orvo_perform(orvo_panel* panel, int32_t deed, const char* widget,
                                 int32_t number, const char* text, orvo_error* error);

/// The id of a member, without regard to case, or of an event; 0 when there is none.
ORVO_EXPORT int32_t orvo_member_id(const char* name);
ORVO_EXPORT int32_t orvo_event_id(const char* name);

/// One of several arguments, whichever version made them. There have to be more than `index`.
ORVO_EXPORT const orvo_value* orvo_argument(const orvo_value* arguments, size_t index);

static inline orvo_value orvo_boolean(int truth) {
    orvo_value value = ORVO_VALUE_INIT;
    value.type = ORVO_BOOLEAN;
    value.as.boolean = truth != 0 ? -1 : 0;
    return value;
}

static inline orvo_value orvo_integer(int16_t integer) {
    orvo_value value = ORVO_VALUE_INIT;
    value.type = ORVO_INTEGER;
    value.as.integer = integer;
    return value;
}

static inline orvo_value orvo_long(int32_t number) {
    orvo_value value = ORVO_VALUE_INIT;
    value.type = ORVO_LONG;
    value.as.long_integer = number;
    return value;
}

static inline orvo_value orvo_number(double number) {
    orvo_value value = ORVO_VALUE_INIT;
    value.type = ORVO_NUMBER;
    value.as.number = number;
    return value;
}

static inline orvo_value orvo_string(const char* text, size_t length) {
    orvo_value value = ORVO_VALUE_INIT;
    value.type = ORVO_STRING;
    value.as.string.text = text;
    value.as.string.length = length;
    return value;
}

/// An array with one dimension, such as the samples of a trace, whose first index is 1.
static inline orvo_value orvo_integer_array(const int16_t* elements, size_t count, int32_t lower) {
    orvo_value value = ORVO_VALUE_INIT;
    value.type = ORVO_INTEGER_ARRAY;
    value.as.array.elements = elements;
    value.as.array.count = count;
    value.as.array.lower = lower;
    value.as.array.dimensions = 1;
    return value;
}

#ifdef __cplusplus
}
#endif
// NOLINTEND(modernize-*,readability-identifier-naming)

#endif
