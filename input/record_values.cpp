#include "input/record_values.h"
