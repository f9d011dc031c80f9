#include "lifecycle/program.h"

InputContext InputContextOf(Program& program, ShellServices& services) {
    return {program.record, program.settings.defaults, program.project, services.dialogs,
            services.clock};
}
