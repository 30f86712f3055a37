/* A section without flags, so that no segment maps it: an attribute on a C++ object would have it mapped at run time. The
   linker keeps it, although nothing refers to it, if it keeps a loaded section of the same file: the empty one. */
    .section .orrin,"",@progbits
    .balign 4
    .incbin "orrin.bin"
    .section .rodata.manifest,"aR",@progbits
    .section .note.GNU-stack,"",@progbits
