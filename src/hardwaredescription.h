// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

/** The makers of display adapters that the decode probe knows. */
enum class AdapterVendor
{
    Intel,
    Nvidia,
    Amd,
};

/**
 * What a system tells about the computer it runs on: the texts that the decode probe judges.
 *
 * Each system keeps them elsewhere, so each has a description of its own. Nothing here fails: what
 * a system cannot tell is an empty text.
 */
class HardwareDescription
{
public:
    HardwareDescription() = default;
    virtual ~HardwareDescription() = default;

    /** The brand string of the first processor. */
    virtual QString processorName() const = 0;
    /** What the system calls the vendor's display adapters, each ended by a line feed. */
    virtual QString adapterDescriptions(AdapterVendor vendor) const = 0;

    /** The description that the running system gives; never null, owned by the caller. */
    static std::unique_ptr<const HardwareDescription> ofThisComputer();

private:
    Q_DISABLE_COPY(HardwareDescription)
};
