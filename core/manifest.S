/* A section without flags is not mapped at run time, unlike one made by an attribute on a C++ object. Nothing refers to
   it; the linker keeps it because it keeps a loaded section of the same file, the empty one. */
    .section .orrin,"",@progbits
    .balign 4
    .incbin "orrin.bin"
    .section .rodata.manifest,"aR",@progbits
    .section .note.GNU-stack,"",@progbits
