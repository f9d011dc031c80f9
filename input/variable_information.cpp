#include "input/variable_information.h"
