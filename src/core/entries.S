// The exported entry points: one stub of 16 bytes per export, which jumps through the export's slot of the dispatch
// table and leaves arguments and return address as they are. Slot n belongs to stub n.

    .macro entry name, slot
    .globl  \name
    .type   \name, @function
    .balign 16
\name:
    .cfi_startproc
    endbr64
    jmp     *(rnxDispatchTable + 8 * \slot)(%rip)
    .cfi_endproc
    .size   \name, . - \name
    .endm

    .hidden rnxDispatchTable
    .text
#include "entries.inc"

    .section .note.GNU-stack, "", @progbits

// Compatible with indirect-branch tracking and shadow stacks.
    .section .note.gnu.property, "a"
    .balign 8
    .long   4
    .long   16
    .long   5
    .asciz  "GNU"
    .long   0xc0000002
    .long   4
    .long   3
    .long   0
