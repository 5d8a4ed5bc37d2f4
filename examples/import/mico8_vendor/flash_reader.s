# Flash reader with a serial line (Mico8, the vendor's style)
#
# At start the program reads the identification of an SPI flash, then it copies 256 bytes into an external
# memory and sends a checksum. A key starts it again. Numbers of all kinds stand here for a reason: this is
# what people write.
/* ports: the first 32 addresses can be named directly,
   all others go by a register */
uart_data       equ     0
uart_status     equ     0x01
spi_data        equ     2
spi_ctrl        equ     0b11
led_port        equ     04
key_port        equ     017             ; octal: 15
mem_page        equ     0x1F
/* bits */
rx_ready        equ     0x01
tx_ready        equ     0b00000010
spi_busy        equ     0x80
spi_select      equ     'A'
; commands of the flash
.equ    cmd_id, 0x9F
.equ    cmd_read, 3
.equ    cmd_wake, 0xAB
.equ    LOAD, 0x5A                      // pattern of the self test
.equ    wide_value, 0x1234
/* registers */
value           reg     r0
count           reg     R1
sum             reg     r02
page            reg     R14
place           reg     r13
JUMP            reg     r20             ; where it was last: an odd name
spare           reg     r31
# ==== start: the interrupt comes to the same address, so the first word leads on =====
                .org    0
reset:          b       start
# ---- interrupt: counts keys ----------------------------------------------------------
interrupt:      import  r25, key_port
                test    r25, r25
                bz      int_end
                inc     r24
                ssp     r24, 31
int_end:        iret
                nop
                nop
start:          clri
                movi    page, #0
                movi    place, #0x00
                movi    spare, '0'
                movi    sum, 0
                clrc
                clrz
                call    self_test
                call    wake
                seti
# ---- main loop --------------------------------------------------------------------------
loop:           call    read_id
                callnz  ADDC
                callz   failed
                call    copy
                mov     value, sum
                call    send_hex
                movi    value, 0x0D
                call    send
                movi    value, 10
                call    send
                movi    value, ';'
                call    send
                movi    value, #','
                call    send
wait_key:       lsp     r3, 31
                cmpi    r3, 0
                bz      wait_key
                movi    r3, 0
                ssp     r3, 31
                b       loop
# ---- identification: three bytes into the scratchpad ---------------------------------------
read_id:        movi    value, cmd_id
                call    spi
                movi    r4, 16
id_next:        movi    value, 0
                call    spi
                sspi    value, r4
                inc     r4
                cmpi    r4, 19
                bnz     id_next
                lsp     value, 16
                lspi    r5, r4
                cmp     value, r5
                ret
# ---- a byte to the flash and back -------------------------------------------------------------
spi:            export  value, spi_data
                outp    spare, spi_ctrl
                inp     r6, #spi_ctrl
                testi   r6, spi_busy
                bnz     $-2             ; until it is ready
                import  value, spi_data
                ret
# ---- wakes the flash -----------------------------------------------------------------------------
wake:           movi    value, cmd_wake
                call    spi
                movi    r7, 100
wake_wait:      dec     r7
                bnz     wake_wait
                bz      $+2             ; over the next
                b       wake
                ret
# ---- copies 256 bytes ------------------------------------------------------------------------------
copy:           movi    value, cmd_read
                call    spi
                movi    r8, 3
copy_addr:      movi    value, _hi(wide_value)
                call    spi
                movi    value, _lo(wide_value)
                call    spi
                subi    r8, 1
                bnz     copy_addr
                movi    count, 0
copy_next:      movi    value, 0
                call    spi
                exporti value, place
                importi r9, place
                outpi   r9, place
                inpi    r9, place
                add     sum, value
                addic   sum, 0
                addi    place, 1
                addic   page, 0
                export  page, mem_page
                dec     count
                bnz     copy_next
                ret
# ---- letters ------------------------------------------------------------------------------------------
send:           import  r10, uart_status
                andi    r10, tx_ready
                bz      send
                export  value, uart_data
                ret
receive:        import  r10, uart_status
                testi   r10, rx_ready
                bz      receive
                import  R00, #0
                ret
send_hex:       mov     r11, value
                ror     r11, r11
                ror     r11, r11
                ror     r11, r11
                ror     r11, r11
                call    INT
                mov     r11, value
INT:            mov     r12, r11
                andi    r12, 0x0F
                addi    r12, '0'
                cmpi    r12, 0x3A
                bc      small
                addi    r12, 7
small:          mov     r15, value
                mov     value, r12
                call    send
                mov     value, r15
                ret
# ---- errors ------------------------------------------------------------------------------------------------
failed:         movi    value, 'E'
                call    send
                movi    r16, 0b1111
                export  r16, led_port
                ret
ADDC:           ori     r16, 1
                export  r16, led_port
                ret
# ---- self test: every operation once, the result in r17 -------------------------------------------------------
self_test:      movi    r17, LOAD
                movi    r18, 0xA5
                add     r17, r18
                addc    r17, r18
                sub     r17, r18
                subc    r17, r18
                subic   r17, 1
                and     r17, r18
                or      r17, r18
                xor     r17, r18
                xori    r17, 0xFF
                rol     r17, r17
                rorc    r17, r17
                rolc    r17, r17
                rol     JUMP, r17
                setc
                bnc     self_bad
                clrc
                bc      self_bad
                setz
                bnz     self_bad
                callc   never
                callnc  nothing
                movi    r19, _hi(table_end)
                movi    r19, _lo(table_end)
                cmpi    r17, 0
                ret
never:          b       $               // stays here
nothing:        ret
self_bad:       movi    value, '!'
                call    send
                b       self_bad
# ---- far away ---------------------------------------------------------------------------------------------------
                .org    0x2F0
far:            inc     JUMP
                bnz     near
                bz      $+0x20          ; the loader's place: no instruction of ours
near:           b       $-1
table_end:      ret
                CALL    far
                MOVI    R3, 0X1F
                RET
