// The conversion state of multibyte characters, which the C++ library's <iosfwd> declares.
#pragma once

typedef union {
    char bytes[128];
    long long alignment;
} mbstate_t;
