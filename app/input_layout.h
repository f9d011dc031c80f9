#pragma once

#include "app/form_layout.h"

// Where the controls of the seven input pages stand, and of the frames inside them. The options
// dialog shows its record tabs with the same layouts.
const std::vector<ContainerLayout>& InputPageLayouts();
