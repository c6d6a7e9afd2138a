// Crossings between an image of iOS's armv7 ABI and this process, whose ABI also passes floats in
// core registers, but aligns the stack to 8 bytes and keeps r9.
	.syntax unified
	.arch	armv7-a
	.fpu	neon
	.arm
	.text
.macro BEGIN name
	.globl	\name
	.type	\name, %function
	.p2align 2
\name:
	.fnstart
.endm
.macro END name
	.fnend
	.size	\name, .-\name
.endm

// Twelve words of arguments from above a frame to the stack's end.
.macro COPY frame, offset
	.irp	word, 0, 4, 8, 12, 16, 20, 24, 28, 32, 36, 40, 44
	ldr	lr, [\frame, #\offset + \word]
	str	lr, [sp, #\word]
	.endr
.endm

// What the ABI leaves open is spoiled.
.macro SPOIL registers:vararg
	.irp	register, \registers
	movw	\register, #0xbad1
	movt	\register, #0xbad2
	.endr
.endm
.macro SPOIL_REALS
	.irp	n, 0, 1, 2, 3, 4, 5, 6, 7, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31
	vmov.i8	d\n, #0xff
	.endr
.endm

// The image calls this process: r12 is the function.
BEGIN loaderOut
	push	{r4, lr}
	.save	{r4, lr}
	mov	r4, sp
	.setfp	r4, sp
	sub	sp, sp, #48
	bic	sp, sp, #7
	COPY	r4, 8
	blx	r12
	mov	sp, r4
	SPOIL	r2, r3, r9, r12
	SPOIL_REALS
	pop	{r4, pc}
END loaderOut

// This process calls the image: r12 is the function. It gets a stack aligned to 4 bytes only.
BEGIN loaderIn
	push	{r4, r9, r11, lr}
	.save	{r4, r9, r11, lr}
	mov	r11, sp
	.setfp	r11, sp
	sub	sp, sp, #52
	COPY	r11, 16
	SPOIL	r9
	SPOIL_REALS
	blx	r12
	mov	sp, r11
	pop	{r4, r9, r11, pc}
END loaderIn

// objc_msgSend, and the one for results in memory, whose address comes first. Sent to nil they
// return zeros and leave that memory alone.
.macro SEND name, receiver, selector
BEGIN \name
	cmp	\receiver, #0
	.ifc	\receiver, r0
	moveq	r1, #0
	.endif
	bxeq	lr
	push	{r4, lr}
	.save	{r4, lr}
	push	{r0-r3}
	.pad	#16
	mov	r4, sp
	.setfp	r4, sp
	bic	sp, sp, #7
	.ifnc	\receiver, r0
	mov	r0, \receiver
	mov	r1, \selector
	.endif
	bl	loaderLookUp
	mov	r12, r0
	mov	sp, r4
	pop	{r0-r3}
	pop	{r4, lr}
	bx	r12
END \name
.endm
	SEND	loaderSend, r0, r1
	SEND	loaderSendStruct, r1, r2

// dyld_stub_binder: the stub helper has pushed the offset in the list of lazy binds and, below it,
// the address of a variable of the image's.
BEGIN loaderBinder
	push	{r0-r4, lr}
	.cantunwind
	ldr	r0, [sp, #24]
	ldr	r1, [sp, #28]
	mov	r4, sp
	bic	sp, sp, #7
	bl	loaderBindLazily
	mov	r12, r0
	mov	sp, r4
	pop	{r0-r4, lr}
	add	sp, sp, #8
	bx	r12
END loaderBinder

// Variable arguments: those in registers are put next to those on the stack.
.macro GATHER name, registers, size, last, function
BEGIN \name
	push	{\registers}
	.pad	#\size
	push	{r4, lr}
	.save	{r4, lr}
	mov	r4, sp
	.setfp	r4, sp
	add	\last, sp, #8
	bic	sp, sp, #7
	bl	\function
	mov	sp, r4
	pop	{r4, lr}
	add	sp, sp, #\size
	bx	lr
END \name
.endm
	GATHER	loaderPrint, r3, 4, r3, loaderPrintFrom
	GATHER	loaderLog, r1-r3, 12, r1, loaderLogFrom

// Stands in for what goes on with an exception at the end of a landing pad.
BEGIN loaderResume
	b	_Unwind_Resume
END loaderResume

// bool loaderCallInit(function, arguments). Every register that a function has to keep holds a mark
// or the stack pointer.
	.globl	loaderCallInit
	.type	loaderCallInit, %function
loaderCallInit:
	push	{r4-r11, lr}
	vpush	{d8-d15}
	sub	sp, sp, #8
	mov	r12, r0
	ldr	r0, [r1, #16]
	str	r0, [sp]
	mov	lr, r1
	.irp	n, 4, 5, 6, 7, 8, 10
	movw	r\n, #(0xb00 + \n)
	.endr
	.irp	n, 8, 9, 10, 11, 12, 13, 14, 15
	movw	r0, #(0xd00 + \n)
	vmov	d\n, r0, r0
	.endr
	mov	r11, sp
	ldm	lr, {r0-r3}
	SPOIL	r9
	blx	r12
	sub	r0, r11, sp
	.irp	n, 4, 5, 6, 7, 8, 10
	movw	r1, #(0xb00 + \n)
	sub	r1, r\n, r1
	orr	r0, r0, r1
	.endr
	.irp	n, 8, 9, 10, 11, 12, 13, 14, 15
	movw	r1, #(0xd00 + \n)
	vmov	r2, r3, d\n
	sub	r2, r2, r1
	sub	r3, r3, r1
	orr	r0, r0, r2
	orr	r0, r0, r3
	.endr
	cmp	r0, #0
	movne	r0, #0
	moveq	r0, #1
	add	sp, sp, #8
	vpop	{d8-d15}
	pop	{r4-r11, pc}
	.size	loaderCallInit, .-loaderCallInit
	.section .note.GNU-stack,"",%progbits
