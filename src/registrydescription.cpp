// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "registrydescription.h"

#include <QSettings>
#include <QVariant>

#include <utility>

namespace {

const QString ProcessorKey =
    QStringLiteral(R"(HKEY_LOCAL_MACHINE\HARDWARE\DESCRIPTION\System\CentralProcessor\0)");
const QString ProcessorValue = QStringLiteral("ProcessorNameString");

// Drivers differ in the name of the value and in the key, so all eight places are read.
const char *const AdapterValues[] = {"DeviceDesc", "Device Description"};
const char *const AdapterKeys[] = {
    R"(HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Services\%1\Device0)",
    R"(HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Services\%1\Video)",
    R"(HKEY_LOCAL_MACHINE\SYSTEM\ControlSet001\Services\%1\Device0)",
    R"(HKEY_LOCAL_MACHINE\SYSTEM\ControlSet001\Services\%1\Video)",
};

/** The service name of the vendor's display driver. */
QString driverService(AdapterVendor vendor)
{
    switch (vendor) {
    case AdapterVendor::Intel:
        return QStringLiteral("igfx");
    case AdapterVendor::Nvidia:
        return QStringLiteral("nvlddmkm");
    case AdapterVendor::Amd:
        return QStringLiteral("amdkmdap");
    }
    return {};
}

} // namespace

RegistryDescription::RegistryDescription(Reader reader) : mReader(std::move(reader)) {}

QString RegistryDescription::processorName() const
{
    return mReader(ProcessorKey, ProcessorValue);
}

QString RegistryDescription::adapterDescriptions(AdapterVendor vendor) const
{
    const QString service = driverService(vendor);
    QString lines;
    for (const char *value : AdapterValues) {
        for (const char *key : AdapterKeys) {
            const QString text = mReader(QString::fromLatin1(key).arg(service), value);
            if (!text.isEmpty())
                lines += text + QLatin1Char('\n');
        }
    }
    return lines;
}

QString RegistryDescription::nativeText(const QString &key, const QString &name)
{
    return QSettings(key, QSettings::NativeFormat).value(name).toString();
}
