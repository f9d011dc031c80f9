#pragma once

// Clears the upper halves of the processor's 256-bit vector registers (x86-64 with AVX; nothing
// elsewhere). A new thread starts with the register state of the thread that made it, and a
// program that has loaded a toolkit can hand on that state "dirty". Then every switch between
// the C library's VEX-coded mathematics (pow) and the program's own SSE-coded arithmetic
// stalls, and the analysis runs about four times slower. No value changes: nothing is held in
// those halves across a call, so a thread may clear them first thing.
void ClearUpperVectorState();
