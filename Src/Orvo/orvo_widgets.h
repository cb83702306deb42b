#ifndef ORVO_ORVO_WIDGETS_H
#define ORVO_ORVO_WIDGETS_H

#include "Orvo/orvo.h"

/// @file
/// The panel in a window. What <Orvo/orvo.h> says holds here, too. Its clock is the real one, which
/// moves while the program's events are processed.
///
/// Windows are made in the thread of the QApplication. Where the host has none, the first window
/// makes one, which lasts until the program ends; without a display the toolkit then ends the
/// program.

// It is C. NOLINTBEGIN(modernize-*,readability-identifier-naming)
#ifdef __cplusplus
extern "C" {
#endif

/// Makes a panel, and runs its start-up, in a window that isn't shown yet. `orvo_destroy` closes
/// it, also from within a handler. `options` may be NULL.
ORVO_EXPORT int32_t orvo_window_create(const orvo_options* options, orvo_panel** panel,
                                       orvo_error* error);

ORVO_EXPORT int32_t orvo_window_set_title(orvo_panel* panel, const char* title, orvo_error* error);

/// 1 is the layout's own size, 709 x 460 pixels; below 0.5 is 0.5, above 8 is 8.
ORVO_EXPORT int32_t orvo_window_set_zoom(orvo_panel* panel, double zoom, orvo_error* error);

ORVO_EXPORT int32_t orvo_window_show(orvo_panel* panel, orvo_error* error);

/// 1 while the window is on the screen, 0 before, when it has been closed, and for any other panel.
ORVO_EXPORT int32_t orvo_window_is_shown(orvo_panel* panel);

/// Processes the program's events, for as many milliseconds at most as there are any; waits for the
/// first one as long. Nothing is processed where there is no QApplication.
ORVO_EXPORT void orvo_process_events(int32_t milliseconds);

/// Processes events until the last window of the program has been closed.
ORVO_EXPORT void orvo_run(void);

#ifdef __cplusplus
}
#endif
// NOLINTEND(modernize-*,readability-identifier-naming)

#endif
