#pragma once

#include "storage/design_file.h"
#include "storage/file_error.h"

#include <gtest/gtest.h>

#include <fstream>
#include <unistd.h>

// An empty folder of the running test, removed afterwards.
class StorageTest : public ::testing::Test {
  protected:
    void SetUp() override { std::filesystem::create_directories(folder); }
    void TearDown() override { std::filesystem::remove_all(folder); }
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("k3-storage-" + std::to_string(::getpid()));
};

// The lines of a file, each ended by CR LF as the program writes them.
inline std::string Lines(std::initializer_list<std::string> lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// The number of the FileError that `action` throws, or 0 when it throws none.
template <typename Action> int ErrorNumberOf(Action action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.number();
    }
    return 0;
}

// The project in memory before a file is read. Every field holds a value that no file in these
// tests holds, so that a field a reader must leave alone shows when it was touched.
inline DesignRecord PreviousProject() {
    DesignRecord record;
    for (const DesignField& field : DesignRecordFields()) {
        if (field.kind == FieldKind::Text) {
            record.*field.text = "old " + std::string(field.name);
        } else if (field.kind == FieldKind::Int16) {
            record.*field.int16 = field.name == "NoDataFlag" ? 0 : 7;
        } else {
            record.*field.real = 99.5;
        }
    }
    return record;
}

// The names of the fields in which two records differ, each followed by a blank.
inline std::string Differences(const DesignRecord& a, const DesignRecord& b) {
    std::string names;
    for (const DesignField& f : DesignRecordFields()) {
        if (f.kind == FieldKind::Text    ? a.*f.text != b.*f.text
            : f.kind == FieldKind::Int16 ? a.*f.int16 != b.*f.int16
                                         : a.*f.real != b.*f.real) {
            names += std::string(f.name) + " ";
        }
    }
    return names;
}

// Reads `path` into `record`: the version read, then the title of each notice shown.
inline std::string Open(const std::filesystem::path& path, int selector, DesignRecord& record,
                        const DesignRecord& defaults = {}) {
    std::string titles;
    const int version = ReadDesignFile(path, selector, record, defaults,
                                       [&](const auto& notice) { titles += ": " + notice.title; });
    return std::to_string(version) + titles;
}
inline const std::string Version1Read = "1: Opening Korvath Win 1.x file";
inline const std::string Version2Read = "2: Opening Korvath Win 2.x file";

// The version line and NoDataFlag 0 that begin every file the program writes, and lines of the
// minimum project below that files of the older layouts share. The name is a long text with
// commas and quotes, which a line holds as it stands.
inline const std::string Header = Lines({"Korvath 3.0", " 0 "});
inline const std::string ProjectName =
    R"(Smith Residence, "Lot 12, Block 4", 'Phase 2')" + std::string(250, ',');
inline const std::string InfoLines =
    Lines({ProjectName, "March 4, 2024", "24-117", "R. Alvarez, P.E.", "Terracon", "G-5521",
           "February 12, 2024", " 1 "});
inline const std::string MaterialLines =
    Lines({"3000 psi concrete", " 3000 ", " 1500000 ", " 145 ", " 270 ", " 1 "});
// clang-format off
inline const std::string BeamLines = Lines({" 5 ", " 1 ", " 4 ", " 0 ", " 24 ", " 30 ", " 26 ",
    " 0 ", " 12 ", " 14 ", " 10 ", " 0 ", " 1 ", " 2 ", " 1.5 ", " 0 ", " 3 ", " 3.25 ", " 2.75 ",
    " 0 "});

// A project with every option at its smallest: standard tendon, prestress force ratio, no slab
// cover, average beam spacing, expansive soil, no dead load, no user subgrade friction, no line
// load. Fields its file does not hold keep the values of PreviousProject().
inline DesignRecord MinimumProject() {
    DesignRecord r = PreviousProject();
    r.ProjName = ProjectName; r.ProjDate = "March 4, 2024"; r.ProjNum = "24-117";
    r.ProjEng = "R. Alvarez, P.E."; r.ProjGeoRep = "Terracon"; r.ProjGeoNum = "G-5521";
    r.ProjGeoDate = "February 12, 2024"; r.FlatSlab = 1; r.MatLabel = "3000 psi concrete";
    r.Fpc = 3000; r.Ec = 1500000; r.UW = 145; r.Fpu = 270; r.TendType = 1; r.RectLabel = "Rect A";
    r.SlabRefType = 2; r.ForceShort = 0.05; r.ForceLong = 0.075; r.SlabTenCovType = 0;
    r.SlabThick = 4; r.RectWidth = 40.5; r.RectLength = 62.25;
    r.QS1 = 5; r.QS2 = 1; r.QL1 = 4; r.QL2 = 0; r.DS1 = 24; r.DS2 = 30; r.DL1 = 26; r.DL2 = 0;
    r.WS1 = 12; r.WS2 = 14; r.WL1 = 10; r.WL2 = 0; r.TS1 = 1; r.TS2 = 2; r.TL1 = 1.5; r.TL2 = 0;
    r.CS1 = 3; r.CS2 = 3.25; r.CL1 = 2.75; r.CL2 = 0; r.BeamSpacing = 1; r.SixFtRule = 1;
    r.SoilLabel = "Clay, PI 35"; r.SoilType = 0; r.ExpBearing = 1500; r.EmCenter = 5.5;
    r.EmEdge = 3.2; r.YmCenter = 1.3; r.YmEdge = 0.75; r.CompBearing = 2000; r.Settle = 1;
    r.Es = 1000; r.ULoad = 40; r.TotalLoad = 1200; r.UseDeadLoad = 0; r.DefCenter = 360;
    r.DefEdge = 720; r.DefSettle = 480; r.Subgradetype = 1; r.Prestress = 15; r.SGFC = 0.6;
    r.LineLoadType = 0;
    return r;
}
// clang-format on
