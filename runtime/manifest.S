/* A section of the file that no segment maps: an attribute on a C++ object would have it mapped at run time. Nothing
   refers to it, and the linker is to keep it all the same. */
    .section .orrin,"R",@progbits
    .balign 4
    .incbin "orrin.bin"
    .section .note.GNU-stack,"",@progbits
