#include "input/input_checks.h"
#include "input/input_events.h"
#include "input/number_entry.h"

#include "input_test_support.h"

#include <gtest/gtest.h>

TEST(NumberEntry, ANumberBoxRefusesASecondPointAndPastedWords) {
    struct Row {
        const char* box;
        const char* text;
        bool accepted;
    };
    const Row rows[] = {
        {"txtFpc", "3500", true},
        {"txtFpc", "", true},
        {"txtFpc", "4.5", true},
        {"txtFpc", "4.", true},    // the point just typed
        {"txtFpc", ".", true},     // a point before the digits
        {"txtFpc", "4.5.", false}, // the second point of "4.5.5" is refused as it is typed
        {"txtFpc", "4.5.5", false},
        {"txtFpc", "..", false},
        {"txtFpc", "abc", false}, // pasted words
        {"txtFpc", "3000 psi", false},
        {"txtFpc", " 3000 ", true}, // blanks around a number are read as always
        {"txtFpc", "30 00", false},
        {"txtTS1", "-1", true}, // a negative count comes by paste; the value check answers it
        {"txtTS1", "-", true},
        {"txtTS1", "--1", false},
        {"txtEc", "1.5E+06", true}, // a large number as a file writes it
        {"txtEc", "1.5E+", true},
        {"txtEc", "1.5E+0.6", false},
        {"txtEc", "E5", false}, // an exponent needs digits before it
        {"txtQS1", "12", true}, // the beam quantities are whole numbers
        {"txtQS1", "1.", false},
        {"txtQS1", "1E2", false},
        {"txtProjName", "4.5.5 and words", true}, // a text box takes anything
        {"txtMatLabel", "..", true},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(AcceptsNumberText(row.box, row.text), row.accepted)
            << row.box << " \"" << row.text << "\"";
    }
}

TEST(NumberEntry, ATextThatIsNoNumberIsNamedAndTheUserTakenToIt) {
    InputFixture f;
    f["txtDS2"].text = "4.5.5"; // as a file or an older build could leave it
    f["txtFpc"].text = "3000";
    try {
        ReadInputRecord(f.screen.form, f.record, 10);
        FAIL() << "the depth was read";
    } catch (const UnreadableField& error) {
        EXPECT_EQ(error.number(), 13);
        EXPECT_EQ(error.box(), "txtDS2");
        ShowUnreadableField(f.screen, f.context, error);
    }
    ASSERT_EQ(f.dialogs.messages.size(), 1u);
    EXPECT_EQ(f.dialogs.messages[0].title, "Input Error!");
    EXPECT_EQ(f.dialogs.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(f.dialogs.messages[0].text,
              "Beam Depth (IN), Short Direction Type 2: \"4.5.5\" is not a number.");
    EXPECT_EQ(f.screen.CurrentInputTab, 4);
    EXPECT_EQ(f["tabInput"].selectedIndex, 3);
    EXPECT_EQ(f.screen.form.focus, "txtDS2");
    EXPECT_EQ(f["txtDS2"].selLength, 5); // the whole text selected, to be typed over

    // A count beyond 16 bits is named the same way.
    f["txtDS2"].text = "24";
    f["txtNumSlabTenLong"].text = "40000";
    f.record.SlabRefType = 0;
    Click(f.screen, f.context, "optSlabRefType(0)");
    f["txtNumSlabTenLong"].text = "40000";
    try {
        ReadInputRecord(f.screen.form, f.record, 10);
        FAIL() << "the count was read";
    } catch (const UnreadableField& error) {
        EXPECT_EQ(error.number(), 6);
        EXPECT_EQ(UnreadableFieldMessage(error, "40000"),
                  "Tendons, Long Direction: the number \"40000\" is too large.");
    }

    // Every number box of the screen has a caption of its own, not its control's name.
    for (const Control& control : f.screen.form.controls()) {
        if (control.name.starts_with("txt") && !IsTextField(control.name)) {
            EXPECT_NE(FieldCaption(control.name), control.name) << control.name;
        }
    }
}

TEST(NumberEntry, ANegativeTendonAreaIsNamedToo) {
    InputFixture f;
    Click(f.screen, f.context, "optTendType(3)");
    f["txtTendArea"].text = "-.1"; // pasted: the sign is a number's
    try {
        ReadInputRecord(f.screen.form, f.record, 10);
        FAIL() << "the area was read";
    } catch (const UnreadableField& error) {
        EXPECT_EQ(error.number(), 5);
        EXPECT_EQ(UnreadableFieldMessage(error, "-.1"),
                  "Tendon Diameter, Other: Area (Sq. In): \"-.1\" is not an area a tendon can "
                  "have.");
    }
}
