// The device's <string.h> as far as the C++ library's <cstring> names it.
#pragma once
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

void *memchr(const void *memory, int byte, size_t size);
int memcmp(const void *left, const void *right, size_t size);
void *memcpy(void *target, const void *source, size_t size);
void *memmove(void *target, const void *source, size_t size);
void *memset(void *memory, int byte, size_t size);

size_t strlen(const char *text);
int strcmp(const char *left, const char *right);
int strncmp(const char *left, const char *right, size_t size);
int strcoll(const char *left, const char *right);
size_t strxfrm(char *target, const char *source, size_t size);
char *strcpy(char *target, const char *source);
char *strncpy(char *target, const char *source, size_t size);
char *strcat(char *target, const char *source);
char *strncat(char *target, const char *source, size_t size);
char *strchr(const char *text, int unit);
char *strrchr(const char *text, int unit);
char *strstr(const char *text, const char *part);
char *strpbrk(const char *text, const char *units);
size_t strspn(const char *text, const char *units);
size_t strcspn(const char *text, const char *units);
char *strtok(char *text, const char *separators);
char *strerror(int number);

#ifdef __cplusplus
}
#endif
