/* The functions of a library that is opened by the first call of one of them; for x86-64.
 * DELAYED_NAMES names a generated file with a line DELAYED(name) for each. */

  .text
  .set index, 0

/* Jumps on to the function itself once it is known: whatever its arguments are, they stay where the
 * caller put them, and it returns to the caller. */
  .macro delayed name
  .p2align 4
  .globl \name
  .type \name, @function
\name:
  endbr64
  movq delayed_functions + 8 * index(%rip), %r11
  testq %r11, %r11
  jz 1f
  jmp *%r11
1:
  movl $index, %r11d
  jmp open_and_go_on
  .size \name, . - \name
  .set index, index + 1
  .endm

/* With the index in r11, the one register that is nobody's here, keeps everything that can carry an
 * argument: al has the number of vectors of a variable argument list. */
  .p2align 4
  .type open_and_go_on, @function
open_and_go_on:
  .cfi_startproc
  pushq %rbp
  .cfi_def_cfa_offset 16
  .cfi_offset %rbp, -16
  movq %rsp, %rbp
  .cfi_def_cfa_register %rbp
  subq $192, %rsp
  movaps %xmm0, (%rsp)
  movaps %xmm1, 16(%rsp)
  movaps %xmm2, 32(%rsp)
  movaps %xmm3, 48(%rsp)
  movaps %xmm4, 64(%rsp)
  movaps %xmm5, 80(%rsp)
  movaps %xmm6, 96(%rsp)
  movaps %xmm7, 112(%rsp)
  movq %rdi, 128(%rsp)
  movq %rsi, 136(%rsp)
  movq %rdx, 144(%rsp)
  movq %rcx, 152(%rsp)
  movq %r8, 160(%rsp)
  movq %r9, 168(%rsp)
  movq %rax, 176(%rsp)
  movl %r11d, 184(%rsp)
  movl %r11d, %edi
  call delayed_open
  movq %rax, %r11
  movaps (%rsp), %xmm0
  movaps 16(%rsp), %xmm1
  movaps 32(%rsp), %xmm2
  movaps 48(%rsp), %xmm3
  movaps 64(%rsp), %xmm4
  movaps 80(%rsp), %xmm5
  movaps 96(%rsp), %xmm6
  movaps 112(%rsp), %xmm7
  movq 128(%rsp), %rdi
  movq 136(%rsp), %rsi
  movq 144(%rsp), %rdx
  movq 152(%rsp), %rcx
  movq 160(%rsp), %r8
  movq 168(%rsp), %r9
  movq 176(%rsp), %rax
  leave
  .cfi_def_cfa %rsp, 8
  jmp *%r11
  .cfi_endproc
  .size open_and_go_on, . - open_and_go_on

#define DELAYED(name) delayed name
#include DELAYED_NAMES
#undef DELAYED

/* The names, one after the other, and how many there are. */
  .section .rodata
  .globl delayed_names, delayed_count
  .hidden delayed_names, delayed_count
delayed_names:
#define DELAYED(name) .asciz #name
#include DELAYED_NAMES
#undef DELAYED
  .p2align 2
delayed_count:
  .long index

/* Their addresses, on pages of their own, which cannot be written. */
  .bss
  .p2align 12
  .globl delayed_functions, delayed_functions_end
  .hidden delayed_functions, delayed_functions_end
delayed_functions:
  .skip 8 * index
  .p2align 12
delayed_functions_end:

  .section .note.GNU-stack, "", @progbits
  .section .note.gnu.property, "a", @note
  .p2align 3
  .long 4, 16, 5
  .asciz "GNU"
  .long 0xc0000002, 4, 3, 0 /* x86 features: IBT, SHSTK */
