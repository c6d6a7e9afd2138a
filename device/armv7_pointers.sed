# Makes ordinary words of the pointers through which armv7 code reaches other images' data. The compiler
# lists them in a section of their own, whose bindings the older linker loses silently.

# The section becomes plain data, and each pointer a symbol that the linker takes for a variable.
s/__DATA,__nl_symbol_ptr,non_lazy_symbol_pointers/__DATA,__imports/
s/L\([A-Za-z0-9_$.]*\)\$non_lazy_ptr/l\1$import/g

# What an entry points to is said by the directive before it: let the word itself say it.
/^\t\.indirect_symbol\t/ {
    N
    s/^\t\.indirect_symbol\t\(.*\)\n\t\.long\t0$/\t.long\t\1/
}
