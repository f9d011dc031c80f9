#pragma once

#include "engine/design_record.h"
#include "input/input_screen.h"
#include "shell/form_model.h"

// The two copies between the input screen and the design record. A selector names a block of
// the record: 0 project information, 1 material, 2 rectangle and slab, 3 beams, 4 soil, 5 loads,
// stiffness and prestress, 6 line load, 10 everything.

// Copies the screen into the record, in the order of the record's fields.
//
// - Selector 2 copies the beams with the slab, and selector 3 copies nothing: saving the beam
//   page alone stores what the record already held.
// - Nothing at all is copied while the record's `NoDataFlag` is not 0.
// - Fields that belong to a choice not made keep their previous values in the record, so that
//   they come back when the user returns to that choice: the custom tendon area, the two
//   reinforcement rows not chosen, the cover, the spacings, the smallest load, the edge down
//   ratio, the user's friction and the line load.
// - An option group with no button on keeps its value.
// - `SoilType` is not read here: the soil list sets it at once.
//
// A number that cannot be read throws RunTimeError 13 (type mismatch), a count outside 16 bits
// RunTimeError 6 (overflow), and a negative custom tendon area RunTimeError 5 (it has no
// diameter), each as an UnreadableField that names the box. The record may then hold the fields
// copied before the failure.
void ReadInputRecord(const FormModel& form, DesignRecord& record, int selector);

// Shows the record on the screen: selector 0 to 6 one page (3 the beams), 10 all. Numbers show
// in their general form; a field that the record's choices switch off shows blank. The enabling
// rules are applied as if the choices had been clicked, and the soil page brings page 6's
// caption in line with `SoilType`. On a visible screen a change of what the fields show marks
// the project changed.
void WriteInputRecord(InputScreen& screen, InputContext& context, int selector);
