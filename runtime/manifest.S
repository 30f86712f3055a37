/* A section of the file that no segment maps: an attribute on a C++ object would have it mapped at run time. */
    .section .orrin,"",@progbits
    .balign 4
    .incbin "orrin.bin"
    .section .note.GNU-stack,"",@progbits
