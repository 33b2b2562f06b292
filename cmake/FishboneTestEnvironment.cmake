# SPDX-FileCopyrightText: 2026 The Fishbone authors
# SPDX-License-Identifier: MIT
#
# FISHBONE_TEST_ENVIRONMENT: the environment variables that every test runs with.

set(FISHBONE_TEST_ENVIRONMENT
    QT_QPA_PLATFORM=offscreen
    QT_LOGGING_RULES=
    LC_ALL=C.UTF-8)
if(FISHBONE_SANITIZE)
    list(APPEND FISHBONE_TEST_ENVIRONMENT
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0"
        "UBSAN_OPTIONS=print_stacktrace=1")
endif()
