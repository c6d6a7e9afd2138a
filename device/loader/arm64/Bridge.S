// Crossings between an image of Apple's arm64 ABI and this process, which keeps the processor's
// plain one.
	.text
	.align	4
.macro BEGIN name
	.globl	\name
	.type	\name, %function
\name:
	.cfi_startproc
.endm
.macro END name
	.cfi_endproc
	.size	\name, .-\name
.endm

// Everything that may hold an argument.
.macro SAVE_ARGUMENTS
	stp	x29, x30, [sp, #-224]!
	.cfi_def_cfa_offset 224
	.cfi_offset 29, -224
	.cfi_offset 30, -216
	mov	x29, sp
	stp	x0, x1, [sp, #16]
	stp	x2, x3, [sp, #32]
	stp	x4, x5, [sp, #48]
	stp	x6, x7, [sp, #64]
	str	x8, [sp, #80]
	stp	q0, q1, [sp, #96]
	stp	q2, q3, [sp, #128]
	stp	q4, q5, [sp, #160]
	stp	q6, q7, [sp, #192]
.endm
.macro RESTORE_ARGUMENTS
	ldp	x0, x1, [sp, #16]
	ldp	x2, x3, [sp, #32]
	ldp	x4, x5, [sp, #48]
	ldp	x6, x7, [sp, #64]
	ldr	x8, [sp, #80]
	ldp	q0, q1, [sp, #96]
	ldp	q2, q3, [sp, #128]
	ldp	q4, q5, [sp, #160]
	ldp	q6, q7, [sp, #192]
	ldp	x29, x30, [sp], #224
	.cfi_def_cfa_offset 0
	.cfi_restore 29
	.cfi_restore 30
.endm

// objc_msgSend. Sent to nil it returns zeros and leaves a struct's memory alone.
BEGIN loaderSend
	cbz	x0, 1f
	SAVE_ARGUMENTS
	bl	loaderLookUp
	mov	x16, x0
	RESTORE_ARGUMENTS
	br	x16
1:	mov	x1, #0
	movi	d0, #0
	movi	d1, #0
	movi	d2, #0
	movi	d3, #0
	ret
END loaderSend

// dyld_stub_binder: the stub helper has pushed the offset in the list of lazy binds and, above it,
// the address of a variable of the image's.
BEGIN loaderBinder
	.cfi_def_cfa_offset 16
	SAVE_ARGUMENTS
	.cfi_def_cfa_offset 240
	ldr	x1, [sp, #224]
	ldr	x0, [sp, #232]
	bl	loaderBindLazily
	mov	x16, x0
	RESTORE_ARGUMENTS
	add	sp, sp, #16
	br	x16
END loaderBinder

// Variadic arguments lie on the stack, in slots of 8 bytes.
BEGIN loaderPrint
	mov	x3, sp
	b	loaderPrintFrom
END loaderPrint
BEGIN loaderLog
	mov	x1, sp
	b	loaderLogFrom
END loaderLog

// Ways out by a function's result: x17 is the function. Apple's callers take a result of less than
// 32 bits as widened to them, and find anything above. Arguments on the stack do not come this far.
.macro RESULT name, widening:vararg
BEGIN \name
	stp	x29, x30, [sp, #-16]!
	.cfi_def_cfa_offset 16
	.cfi_offset 29, -16
	.cfi_offset 30, -8
	mov	x29, sp
	blr	x17
	\widening
	movk	x0, #0xbad1, lsl #32
	movk	x0, #0xbad2, lsl #48
	ldp	x29, x30, [sp], #16
	.cfi_def_cfa_offset 0
	.cfi_restore 29
	.cfi_restore 30
	ret
END \name
.endm
RESULT loaderResultU8, and w0, w0, #0xff
RESULT loaderResultS8, sxtb w0, w0
RESULT loaderResultU16, and w0, w0, #0xffff
RESULT loaderResultS16, sxth w0, w0
RESULT loaderResult32, mov w0, w0
RESULT loaderResultFloat, ins v0.s[1], w17

// bool loaderCallInit(function, arguments). Every register that a function has to keep holds a mark
// or the stack pointer.
	.globl	loaderCallInit
	.type	loaderCallInit, %function
loaderCallInit:
	stp	x29, x30, [sp, #-160]!
	stp	x19, x20, [sp, #16]
	stp	x21, x22, [sp, #32]
	stp	x23, x24, [sp, #48]
	stp	x25, x26, [sp, #64]
	stp	x27, x28, [sp, #80]
	stp	d8, d9, [sp, #96]
	stp	d10, d11, [sp, #112]
	stp	d12, d13, [sp, #128]
	stp	d14, d15, [sp, #144]
	mov	x16, x0
	mov	x17, x1
	.irp	n, 19, 20, 21, 22, 23, 24, 25, 26, 27
	mov	x\n, #(0xb00 + \n)
	.endr
	.irp	n, 8, 9, 10, 11, 12, 13, 14, 15
	mov	x9, #(0xd00 + \n)
	fmov	d\n, x9
	.endr
	mov	x28, sp
	mov	x29, sp
	ldp	x0, x1, [x17]
	ldp	x2, x3, [x17, #16]
	ldr	x4, [x17, #32]
	.irp	n, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
	movn	x\n, #0xbad1
	.endr
	blr	x16
	mov	x9, sp
	sub	x10, x28, x9
	sub	x11, x29, x9
	orr	x0, x10, x11
	.irp	n, 19, 20, 21, 22, 23, 24, 25, 26, 27
	sub	x9, x\n, #(0xb00 + \n)
	orr	x0, x0, x9
	.endr
	.irp	n, 8, 9, 10, 11, 12, 13, 14, 15
	fmov	x9, d\n
	sub	x9, x9, #(0xd00 + \n)
	orr	x0, x0, x9
	.endr
	cmp	x0, #0
	cset	w0, eq
	ldp	x19, x20, [sp, #16]
	ldp	x21, x22, [sp, #32]
	ldp	x23, x24, [sp, #48]
	ldp	x25, x26, [sp, #64]
	ldp	x27, x28, [sp, #80]
	ldp	d8, d9, [sp, #96]
	ldp	d10, d11, [sp, #112]
	ldp	d12, d13, [sp, #128]
	ldp	d14, d15, [sp, #144]
	ldp	x29, x30, [sp], #160
	ret
	.size	loaderCallInit, .-loaderCallInit
	.section .note.GNU-stack,"",%progbits
