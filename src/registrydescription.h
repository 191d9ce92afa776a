// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hardwaredescription.h"

#include <functional>

/**
 * The computer as the Windows registry describes it. The processor stands under the system's own
 * description, an adapter under the service of its vendor's display driver.
 *
 * A system without a registry reads as one without entries: all texts are empty.
 */
class RegistryDescription : public HardwareDescription
{
public:
    /** Gives the text of the value called name under key, or an empty one if there is none. */
    using Reader = std::function<QString(const QString &key, const QString &name)>;

    /** Every text is read anew, through the reader, each time it is asked for. */
    explicit RegistryDescription(Reader reader = nativeText);

    QString processorName() const override;
    /** Up to eight lines: a description that stands under several keys is repeated. */
    QString adapterDescriptions(AdapterVendor vendor) const override;

    /** The reader of the system's registry. */
    static QString nativeText(const QString &key, const QString &name);

private:
    Reader mReader;
};
