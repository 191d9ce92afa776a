// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hardwaredescription.h"

#include <QMap>

/** Where Linux keeps what it knows of the computer. */
struct LinuxSources
{
    QString processors = QStringLiteral("/proc/cpuinfo"); ///< the file of the processors
    QString devices = QStringLiteral("/sys/bus/pci");     ///< the folder of the PCI bus
    QString names; ///< the PCI database; empty for the system's own
};

/**
 * The computer as Linux describes it: the processor's brand string from the kernel, and the names
 * that the system's PCI database gives to the devices that are display adapters.
 *
 * All is read when the description is made, on the thread that makes it. A computer without a PCI
 * bus, a device that vanishes meanwhile and a name that the database does not hold cost nothing but
 * their own lines.
 */
class LinuxDescription : public HardwareDescription
{
public:
    explicit LinuxDescription(const LinuxSources &sources = {});

    QString processorName() const override { return mProcessorName; }
    QString adapterDescriptions(AdapterVendor vendor) const override;

private:
    QString mProcessorName;
    QMap<AdapterVendor, QString> mAdapterLines;
};
