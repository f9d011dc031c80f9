#pragma once

#include "input/input_record.h"
#include "input/input_screen.h"
#include "shell/load_settings.h"

#include "tests/shell/shell_test_support.h"

// An input screen shown from a new project's record, with a default record whose values differ
// from the project's wherever a rule fills a field, so that a test can tell where a value came
// from.
struct InputFixture {
    DesignRecord record = FirstStartDefaultRecord("November 23, 2026");
    DesignRecord defaults = FirstStartDefaultRecord("November 23, 2026");
    ProjectState project;
    RecordingDialogs dialogs;
    FixedClock clock{"November 23, 2026"};
    InputScreen screen = LoadInputScreen();
    InputContext context{record, defaults, project, dialogs, clock};

    InputFixture() {
        defaults.TendArea = 0.2;
        defaults.NumSlabTenShort = 11;
        defaults.NumSlabTenLong = 12;
        defaults.StrLvlShort = 75;
        defaults.StrLvlLong = 80;
        defaults.ForceShort = 0.06;
        defaults.ForceLong = 0.07;
        defaults.SlabTenCov = 1.5;
        defaults.SMin = 9;
        defaults.SMax = 16;
        defaults.LMin = 10;
        defaults.LMax = 17;
        defaults.UDSS = 21;
        defaults.UDLS = 22;
        defaults.UDSM = 23;
        defaults.UDLM = 24;
        defaults.DeadLoad = 600;
        defaults.DefCLSettle = 999; // the edge down ratio is filled from the record instead
        defaults.LineLoad = 1500;
        defaults.DirLineLoad = "Short Direction";
        defaults.PreLineLoadType = 2;
        defaults.UDPreLineLoad = 125;
        defaults.Ks = 40;
        project.caption = "Korvath3 - Untitled";
        WriteInputRecord(screen, context, 10); // hidden: no change is marked
        screen.visible = true;
    }

    Control& operator[](std::string_view name) { return screen.form[name]; }
};
