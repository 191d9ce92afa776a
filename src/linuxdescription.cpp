// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "linuxdescription.h"

#include <QFile>

#include <csetjmp>
#include <cstring>

extern "C" {
#include <pci/pci.h>
}

namespace {

const struct
{
    int id; // as the PCI bus numbers makers
    AdapterVendor vendor;
} Vendors[] = {
    {0x8086, AdapterVendor::Intel},
    {0x10de, AdapterVendor::Nvidia},
    {0x1002, AdapterVendor::Amd}, // graphics
    {0x1022, AdapterVendor::Amd}, // processors
};

constexpr int BaseClassShift = 8; // of a device class of base class and subclass
constexpr int MaxNameBytes = 1024;

struct PciCleanup
{
    void operator()(pci_access *access) const { pci_cleanup(access); }
};
using PciAccess = std::unique_ptr<pci_access, PciCleanup>;

thread_local std::jmp_buf pointOfReturn;

// The standard spelling is no part of a function's type, as which the library wants it.
[[gnu::noreturn]] void leaveCall(char *, ...)
{
    std::longjmp(pointOfReturn, 1);
}

void ignoreMessage(char *, ...) {}

/**
 * Calls into the PCI library and tells whether the call came back. On an error the library ends
 * the process if its handler returns, so the handler jumps out of the call instead. The call must
 * hold no object that needs a destructor.
 */
template <typename Call>
bool comesBack(Call call)
{
    if (setjmp(pointOfReturn) != 0)
        return false;
    call();
    return true;
}

/** Access to the PCI bus with its devices listed: none if there is no bus. */
PciAccess scannedBus(const LinuxSources &sources)
{
    PciAccess access(pci_alloc());
    // Named, since the library's own search for a bus without this folder ends at the ports.
    access->method = PCI_ACCESS_SYS_BUS_PCI;
    access->error = leaveCall;
    access->warning = ignoreMessage;
    access->debug = ignoreMessage;
    char parameter[] = "sysfs.path";
    pci_set_param(access.get(), parameter, QFile::encodeName(sources.devices).data());
    if (!sources.names.isEmpty()) {
        char *path = strdup(QFile::encodeName(sources.names).constData());
        pci_set_name_list_path(access.get(), path, 1); // frees the path with the access
    }
    pci_access *bus = access.get();
    const auto scan = [bus] {
        pci_init(bus);
        pci_scan_bus(bus);
    };
    comesBack(scan);
    return access;
}

bool isDisplayAdapter(pci_dev *device)
{
    const auto fill = [device] { pci_fill_info(device, PCI_FILL_IDENT | PCI_FILL_CLASS); };
    return comesBack(fill) && device->device_class >> BaseClassShift == PCI_BASE_CLASS_DISPLAY;
}

/** The maker's and the device's name, empty if the database lacks one of them. */
QString databaseName(pci_access *access, const pci_dev *device)
{
    // Without udev's copy of the database: looking for a missing one leaks.
    constexpr int flags =
        PCI_LOOKUP_VENDOR | PCI_LOOKUP_DEVICE | PCI_LOOKUP_NO_NUMBERS | PCI_LOOKUP_NO_HWDB;
    char text[MaxNameBytes] = "";
    const char *name = nullptr;
    const auto lookUp = [&] {
        name = pci_lookup_name(access, text, MaxNameBytes, flags, device->vendor_id,
                               device->device_id);
    };
    return comesBack(lookUp) ? QString::fromUtf8(name) : QString();
}

QMap<AdapterVendor, QString> adapterLines(const LinuxSources &sources)
{
    QMap<AdapterVendor, QString> lines;
    const PciAccess access = scannedBus(sources);
    for (pci_dev *device = access->devices; device; device = device->next) {
        if (!isDisplayAdapter(device))
            continue;
        for (const auto &known : Vendors) {
            if (known.id != device->vendor_id)
                continue;
            const QString name = databaseName(access.get(), device);
            if (!name.isEmpty())
                lines[known.vendor] += name + QLatin1Char('\n');
        }
    }
    return lines;
}

QString firstModelName(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // The kernel's files have no size, so only an empty line tells the end.
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
        if (line.startsWith("model name"))
            return QString::fromUtf8(line.mid(line.indexOf(':') + 1)).trimmed();
    }
    return {};
}

} // namespace

LinuxDescription::LinuxDescription(const LinuxSources &sources)
    : mProcessorName(firstModelName(sources.processors)), mAdapterLines(adapterLines(sources))
{}

QString LinuxDescription::adapterDescriptions(AdapterVendor vendor) const
{
    return mAdapterLines.value(vendor);
}
