#include "shell/factory_defaults.h"

DesignRecord FactoryDefaultRecord(const std::string& projectDate) {
    DesignRecord record;
    // Project information
    record.ProjDate = projectDate;
    record.FlatSlab = 0;
    // Material
    record.Fpc = 3000;
    record.Ec = 1500000;
    record.UW = 145;
    record.Fpu = 270;
    record.TendType = 2;
    record.TendArea = 0;
    // Foundation rectangle and slab
    record.SlabThick = 4;
    record.RectWidth = 0;
    record.RectLength = 0;
    record.SlabTenCovType = 0;
    record.SlabTenCov = 0;
    record.SlabRefType = 2;
    record.NumSlabTenShort = 0;
    record.NumSlabTenLong = 0;
    record.StrLvlShort = 50;
    record.StrLvlLong = 50;
    record.ForceShort = 0.05;
    record.ForceLong = 0.05;
    // Beams: all zero but the six-foot rule, which is on.
    record.SixFtRule = 1;
    // Soil
    record.ExpBearing = 4000;
    record.CompBearing = 1500;
    record.CLSettleState = 0;
    record.Es = 1000;
    // Loads, stiffness and prestress
    record.ULoad = 40;
    record.TotalLoad = 0;
    record.UseDeadLoad = 0;
    record.DeadLoad = 0;
    record.DefCenter = 480;
    record.DefEdge = 960;
    record.DefSettle = 960;
    record.DefCLSettle = 480;
    record.Subgradetype = 0;
    record.Prestress = 15;
    record.SGFC = 0.75;
    // Line load
    record.LineLoadType = 0;
    record.LineLoad = 0;
    record.DirLineLoad = "Long Direction";
    record.PreLineLoadType = 0;
    record.UDPreLineLoad = 0;
    record.Ks = 4;
    return record;
}
