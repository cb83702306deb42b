#ifndef ORVO_TESTS_EXPECT_H
#define ORVO_TESTS_EXPECT_H

#include <stdio.h>

static int failures;

// The name of each place that fails is printed; `main` returns `failures`.
#define EXPECT(condition)                                                                 \
    do {                                                                                  \
        if (!(condition)) {                                                               \
            ++failures;                                                                   \
            (void)fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition); \
        }                                                                                 \
    } while (0)

#endif
