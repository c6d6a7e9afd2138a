// The device's <stdlib.h> as far as the C++ library's <cstdlib> names it.
#pragma once
#include <stddef.h>

#define EXIT_SUCCESS 0
#define EXIT_FAILURE 1

#ifdef __cplusplus
extern "C" {
#endif

typedef struct {
    int quot;
    int rem;
} div_t;
typedef struct {
    long quot;
    long rem;
} ldiv_t;
typedef struct {
    long long quot;
    long long rem;
} lldiv_t;

void *malloc(size_t size);
void *calloc(size_t count, size_t size);
void *realloc(void *memory, size_t size);
void *aligned_alloc(size_t alignment, size_t size);
void free(void *memory);

void abort(void) __attribute__((noreturn));
void exit(int status) __attribute__((noreturn));
void _Exit(int status) __attribute__((noreturn));
void quick_exit(int status) __attribute__((noreturn));
int atexit(void (*function)(void));
int at_quick_exit(void (*function)(void));
int system(const char *command);
char *getenv(const char *name);

double atof(const char *text);
int atoi(const char *text);
long atol(const char *text);
long long atoll(const char *text);
float strtof(const char *text, char **end);
double strtod(const char *text, char **end);
long double strtold(const char *text, char **end);
long strtol(const char *text, char **end, int base);
long long strtoll(const char *text, char **end, int base);
unsigned long strtoul(const char *text, char **end, int base);
unsigned long long strtoull(const char *text, char **end, int base);

int rand(void);
void srand(unsigned seed);
int abs(int value);
long labs(long value);
long long llabs(long long value);
div_t div(int dividend, int divisor);
ldiv_t ldiv(long dividend, long divisor);
lldiv_t lldiv(long long dividend, long long divisor);

void *bsearch(const void *key, const void *items, size_t count, size_t size,
              int (*compare)(const void *, const void *));
void qsort(void *items, size_t count, size_t size, int (*compare)(const void *, const void *));

int mblen(const char *text, size_t size);
int mbtowc(wchar_t *wide, const char *text, size_t size);
int wctomb(char *text, wchar_t wide);
size_t mbstowcs(wchar_t *wide, const char *text, size_t count);
size_t wcstombs(char *text, const wchar_t *wide, size_t count);

#ifdef __cplusplus
}
#endif
