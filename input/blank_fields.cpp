#include "input/blank_fields.h"
