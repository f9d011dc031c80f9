#pragma once

#include "common/run_time_error.h"
#include "shell/form_model.h"

#include <string>
#include <string_view>

// What a number box of the input screen or the options form may hold while the user types or
// pastes, and the message when its text still cannot be read as a number.

// Whether the user's edit may leave `text` in the box. A text box of words takes anything. A
// number box takes a number or the beginning of one (blanks around it, a sign, digits, one
// decimal point, an exponent): "4.5.5" and pasted words are refused as they are typed, while
// "-", "." and "1E" stand until the next key. The four beam quantities take no point and no
// exponent.
bool AcceptsNumberText(std::string_view box, std::string_view text);

// A number box whose text could not be read into the record: the run-time error of the
// conversion (13 type mismatch, 6 overflow, 5 for a tendon area below zero) and the box.
class UnreadableField : public RunTimeError {
  public:
    UnreadableField(int number, std::string box) : RunTimeError(number), m_box(std::move(box)) {}
    const std::string& box() const { return m_box; }

  private:
    std::string m_box;
};

// The field's caption as the engineer reads it on its page, with the column where the caption
// heads a row of several boxes: "Concrete Strength (PSI)", "Beam Depth (IN), Short Direction
// Type 2". The box's name for a box without one.
std::string FieldCaption(std::string_view box);

// The message for a box whose text is no number (or too large a number): it names the field's
// caption and quotes the text.
std::string UnreadableFieldMessage(const UnreadableField& error, std::string_view text);
