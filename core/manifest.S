/* A section without flags, so that no segment maps it: an attribute on a C++ object would have it mapped at run time. The
   linker keeps it although nothing refers to it, since only sections that are loaded are collected. */
    .section .orrin,"",@progbits
    .balign 4
    .incbin "orrin.bin"
    .section .note.GNU-stack,"",@progbits
