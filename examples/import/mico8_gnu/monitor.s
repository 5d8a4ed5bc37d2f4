/*
 * Monitor for a small board (Mico8, the style of the GNU tools)
 *
 * Commands at the serial line: `d` dumps the scratchpad, `w` writes a cell, `b` blinks, `t` tells the time.
 * Local labels carry numbers, as in output of a compiler.
 */
        .section .text
        .text
        .global _start
        .global main
        .type   main, @function

/* ports */
        .equ    UART_DATA, 0x00
        .equ    UART_STATUS, 1
        .equ    TIMER, 2
        .set    LEDS, 0b11
        .set    leds, 04                // a shadow register: the case tells them apart
/* values */
        .equ    RX, 0x01
        .equ    TX, 0b10
        .equ    EOL, '\n'
        .equ    SPACE, ' '
        .equ    SEMI, ';'
        .equ    TICKS, 0144             /* octal: 100 */
        .equ    CLOCK, 0x2710           // 10000
        .equ    COMP, 7
        .equ    comp, 8

# ==== start ==============================================================================
        .org    0
_start: b       main                    ; reset and interrupt
        cmpi    r30, TICKS
        bnz     1f
        movi    r30, 0
        inc     r29
1:      inc     r30
        iret

main:
        clri
        movi    r29, 0
        movi    r30, #0
        movi    r26, 0x0F
        export  r26, LEDS
        export  r26, #leds
        seti
.Lprompt:
        movi    r0, '>'
        call    putc
        movi    r0, SPACE
        call    putc
        call    getc
        cmpi    r0, 'd'
        bz      .Ldump
        cmpi    r0, 'w'
        bz      .Lwrite
        cmpi    r0, 'b'
        callz   blink
        cmpi    r0, 't'
        callz   time
        cmpi    r0, SEMI
        bz      .Lprompt
        cmpi    r0, ','
        callnz  help
        b       .Lprompt
        .size   main, .-main

# ---- dump: 32 cells, 8 a line -----------------------------------------------------------------
.Ldump:
        movi    r2, 0
1:      lspi    r3, r2
        mov     r0, r3
        call    puthex
        movi    r0, SPACE
        call    putc
        inc     r2
        testi   r2, 7
        bnz     1b
        movi    r0, EOL
        call    putc
        cmpi    r2, 32
        bc      1b
        b       .Lprompt

# ---- write: address and value as two digits each --------------------------------------------------
.Lwrite:
        call    gethex
        mov     r2, r0
        call    gethex
        sspi    r0, r2
        ssp     r0, 31
        lsp     r4, 31
        cmp     r4, r0
        bz      .Lprompt
        call    error
        b       .Lprompt

# ---- letters -----------------------------------------------------------------------------------------
        .global putc
putc:
1:      import  r1, UART_STATUS
        testi   r1, TX
        bz      1b
        export  r0, UART_DATA
        ret

LOADRET:
getc:   import  r1, UART_STATUS
        andi    r1, RX
        bz      getc
        inp     r0, UART_DATA
        ret

puthex: mov     r5, r0
        ror     r5, r5
        ror     r5, r5
        ror     r5, r5
        ror     r5, r5
        call    2f
        mov     r5, r0
2:      mov     r6, r0
        andi    r5, 0xF
        addi    r5, '0'
        cmpi    r5, 072                 // behind '9'
        bc      1f
        addi    r5, 7
1:      mov     r0, r5
        call    putc
        mov     r0, r6
        ret

gethex: movi    r7, 0
        movi    r8, 2
3:      call    LOADRET            // the letter
        subi    r0, '0'
        cmpi    r0, 10
        bc      4f
        subi    r0, 7
        andi    r0, 017
4:      rol     r7, r7
        rol     r7, r7
        rol     r7, r7
        rol     r7, r7
        or      r7, r0
        dec     r8
        bnz     3b
        mov     r0, r7
        ret

# ---- blink: a pattern runs through the lights -----------------------------------------------------------
blink:  movi    r9, 0b10000000
        movi    r10, 8
1:      outp    r9, LEDS
        call    delay
        rorc    r9, r9
        dec     r10
        bnz     1b
        setc
        bnc     1b
        bc      1f
        nop
1:      rolc    r9, r9
        clrc
        clrz
        setz
        callnc  delay
        callc   error
        ret

delay:  movi    r11, _lo(CLOCK)
        movi    r12, _hi(CLOCK)
5:      subi    r11, 1
        subic   r12, 0
        bnz     5b
        bc      $+2
        b       $-3
        ret

# ---- time: what the interrupt has counted -------------------------------------------------------------------
time:   mov     r0, r29
        call    puthex
        import  r13, TIMER
        mov     r0, r13
        b       puthex

# ---- errors and help -------------------------------------------------------------------------------------------
error:  movi    r0, 'E'
        call    putc
        movi    r14, _hi(text)
        movi    r13, _lo(text)
        xori    r14, LATE_MASK          // defined at the end
        ori     r14, 1
        addi    r13, COMP
        addic   r14, comp
        add     r13, r14
        addc    r14, r13
        sub     r13, r14
        subc    r14, r13
        and     r13, r14
        or      r13, r14
        xor     r13, r14
        test    r13, r14
        ret
Error:  b       error                   /* another name: the case again */

help:   movi    r0, 'd'
        call    putc
        movi    r0, 'w'
        call    putc
        movi    r0, 'b'
        call    putc
        movi    r0, 't'
        call    putc
text:   movi    r0, EOL
        b       putc

# ---- memory beyond the scratchpad, at a place of its own ---------------------------------------------------------
        .org    0x180
copy:   importi r15, r13
        exporti r15, r14
        inpi    r15, r13
        outpi   r15, r14
        inc     r13
        inc     r14
        dec     r16
        bnz     copy
        bz      $+0x40                  // the loader's: no instruction there
        b       Error
        MOVI    R15, 0B11
        CALL    copy
        RET
        .org    0x1FF
        b       copy
        .equ    LATE_MASK, 0x55
