#pragma once

#include "engine/design_record.h"
#include "shell/form_model.h"

// Which fields of the input screen an option, check box or list switches on and off. A field
// switched off is disabled and blank, and its label and spin follow it. A field switched on is
// enabled and, when `fill` is given, filled from that record: the default record when the user
// clicks, so that switching a choice off and on again shows the defaults and not what was
// typed. When the screen is filled from the design record no `fill` is given, since the
// record's own values are set afterwards.

void ApplyTendType(FormModel& form, int index, const DesignRecord* fill);
void ApplySlabRefType(FormModel& form, int index, const DesignRecord* fill);
void ApplySlabTenCovType(FormModel& form, bool checked, const DesignRecord* fill);
void ApplyBeamSpacing(FormModel& form, int index, const DesignRecord* fill);
void ApplySubgradetype(FormModel& form, int index, const DesignRecord* fill);
void ApplyUseDeadLoad(FormModel& form, bool checked, const DesignRecord* fill);
// The edge down ratio is filled from the design record, not from the defaults.
void ApplyCLSettleState(FormModel& form, bool checked, const DesignRecord* fill);
void ApplyPreLineLoad(FormModel& form, int index, const DesignRecord* fill);
// Switched on with `fill`, the direction, the prestress option and the fields take its values.
void ApplyLineLoadType(FormModel& form, bool checked, const DesignRecord* fill);

// The soil list's choice, `record.SoilType`, on the soil and load pages: the frames of that
// soil in front, their fields in the tab sequence, and the smallest-load check taken from the
// record for expansive soil or cleared and disabled for compressible soil.
void ApplySoilType(FormModel& form, const DesignRecord& record);

// Takes every field of every page out of the tab sequence.
void ClearExpTabStops(FormModel& form);

// Puts back the fields of one page (1 to 7) that the present choices allow: of an option group
// only the selected button, and only the dependent fields it has switched on.
void SetExpTabStops(FormModel& form, int page, int soilType);

// The read-only geometry line of the beam page: width and length with "#,##0.00" and the
// thickness with "#0.00", as "W FT x L FT x T In".
void ShowRectGeometry(FormModel& form, double width, double length, double thickness);

// The same line from what the three boxes hold while the user types: each by the number its
// text begins with, 0 when it has none. It never fails.
void ShowTypedRectGeometry(FormModel& form);
