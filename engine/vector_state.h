#pragma once

// Clears the upper halves of the processor's 256-bit vector registers (x86-64 with AVX; nothing
// elsewhere). Wide vector code of a toolkit (Qt, while it starts) can leave that state "dirty",
// and a new thread starts with the state of the thread that made it. Then every switch between
// the C library's VEX-coded mathematics (pow) and the program's own SSE-coded arithmetic
// stalls, and the analysis runs four to seven times slower. No value changes: nothing is held
// in those halves across a call, so the analysis and a thread may clear them first thing.
void ClearUpperVectorState();
