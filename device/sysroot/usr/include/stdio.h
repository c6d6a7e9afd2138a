// The device's <stdio.h> as far as the C++ library's <cstdio> names it. Streams stay opaque.
#pragma once
#include <stdarg.h>
#include <stddef.h>

#define EOF (-1)
#define SEEK_SET 0
#define SEEK_CUR 1
#define SEEK_END 2

#ifdef __cplusplus
extern "C" {
#endif

typedef struct __sFILE FILE;
typedef long long fpos_t;

FILE *fopen(const char *path, const char *mode);
FILE *freopen(const char *path, const char *mode, FILE *stream);
FILE *tmpfile(void);
int fclose(FILE *stream);
int fflush(FILE *stream);
void setbuf(FILE *stream, char *buffer);
int setvbuf(FILE *stream, char *buffer, int mode, size_t size);
int remove(const char *path);
int rename(const char *from, const char *to);
char *tmpnam(char *name);

size_t fread(void *items, size_t size, size_t count, FILE *stream);
size_t fwrite(const void *items, size_t size, size_t count, FILE *stream);
int fgetpos(FILE *stream, fpos_t *position);
int fsetpos(FILE *stream, const fpos_t *position);
int fseek(FILE *stream, long offset, int origin);
long ftell(FILE *stream);
void rewind(FILE *stream);
void clearerr(FILE *stream);
int feof(FILE *stream);
int ferror(FILE *stream);
void perror(const char *prefix);

int fgetc(FILE *stream);
int getc(FILE *stream);
int getchar(void);
int ungetc(int unit, FILE *stream);
char *fgets(char *line, int size, FILE *stream);
int fputc(int unit, FILE *stream);
int putc(int unit, FILE *stream);
int putchar(int unit);
int fputs(const char *text, FILE *stream);
int puts(const char *text);

int printf(const char *format, ...);
int fprintf(FILE *stream, const char *format, ...);
int sprintf(char *text, const char *format, ...);
int snprintf(char *text, size_t size, const char *format, ...);
int vprintf(const char *format, va_list arguments);
int vfprintf(FILE *stream, const char *format, va_list arguments);
int vsprintf(char *text, const char *format, va_list arguments);
int vsnprintf(char *text, size_t size, const char *format, va_list arguments);
int scanf(const char *format, ...);
int fscanf(FILE *stream, const char *format, ...);
int sscanf(const char *text, const char *format, ...);
int vscanf(const char *format, va_list arguments);
int vfscanf(FILE *stream, const char *format, va_list arguments);
int vsscanf(const char *text, const char *format, va_list arguments);

#ifdef __cplusplus
}
#endif
