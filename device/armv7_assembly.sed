# Changes the compiler's assembly for armv7 where the older linker would make wrong code of it, silently.

# It loses the bindings of pointers to other images' data, which the compiler lists in a section of their
# own. The section becomes plain data, and each pointer a symbol that the linker takes for a variable.
s/__DATA,__nl_symbol_ptr,non_lazy_symbol_pointers/__DATA,__imports/
s/L\([A-Za-z0-9_$.]*\)\$non_lazy_ptr/l\1$import/g

# What an entry points to is said by the directive before it: let the word itself say it.
/^\t\.indirect_symbol\t/ {
    N
    s/^\t\.indirect_symbol\t\(.*\)\n\t\.long\t0$/\t.long\t\1/
}

# It counts hidden symbols among the local ones, before the exported ones, while relocations count in the
# order of the table. In an object whose exported symbol stands first, as _ZQDialMain does, every
# reference would then lead to the next symbol. Nothing is hidden here; the link's list of exports is
# what hides.
/^\t\.private_extern\t/d
