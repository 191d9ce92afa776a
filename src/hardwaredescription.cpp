// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "hardwaredescription.h"

#ifdef Q_OS_LINUX
#include "linuxdescription.h"
using SystemDescription = LinuxDescription;
#else
#include "registrydescription.h"
using SystemDescription = RegistryDescription;
#endif

std::unique_ptr<const HardwareDescription> HardwareDescription::ofThisComputer()
{
    return std::make_unique<const SystemDescription>();
}
