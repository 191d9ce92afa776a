// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "computeinfo.h"
#include "registrydescription.h"

#ifdef Q_OS_LINUX
#include "linuxdescription.h"
#endif

#include <QtTest>

#include <functional>

namespace {

const QString ProcessorPlace =
    QStringLiteral(R"(HKEY_LOCAL_MACHINE\HARDWARE\DESCRIPTION\System\CentralProcessor\0)"
                   "|ProcessorNameString");

/** The eight places of a driver's adapters, in the order of reading. */
QStringList adapterPlaces(const QString &service)
{
    const QString place = R"(HKEY_LOCAL_MACHINE\SYSTEM\%1\Services\%2\%3|%4)";
    QStringList places;
    for (const QString value : {"DeviceDesc", "Device Description"}) {
        for (const QString set : {"CurrentControlSet", "ControlSet001"})
            places << place.arg(set, service, "Device0", value)
                   << place.arg(set, service, "Video", value);
    }
    return places;
}

QStringList loggedLines;

void keepDebugLine(QtMsgType type, const QMessageLogContext &, const QString &line)
{
    if (type == QtDebugMsg)
        loggedLines << line;
}

QStringList debugLines(const std::function<void()> &call)
{
    loggedLines.clear();
    const QtMessageHandler before = qInstallMessageHandler(keepDebugLine);
    call();
    qInstallMessageHandler(before);
    return loggedLines;
}

/** What a probe makes of a registry with these texts, by "key|value name". */
struct Probe
{
    explicit Probe(const QMap<QString, QString> &texts)
        : info(std::make_unique<RegistryDescription>([=](const QString &key, const QString &name) {
            reads << key + '|' + name;
            return texts.value(reads.last());
        }))
        , log(debugLines([this] { info.updateCpuAndCardInfo(); }))
    {}

    QStringList reads;
    ComputeInfo info;
    QStringList log;
};

using Flags = QVector<bool>; // in the order in which they are logged

/** With the first line that is logged between the texts and the flags, if there is one. */
void addRow(const QString &place, const char *text, const Flags &flags,
            const QString &finding = "isHDDecodeH265 = false")
{
    QTest::newRow(text) << place << QString(text) << flags << finding;
}

} // namespace

class TestComputeInfo : public QObject
{
    Q_OBJECT

private slots:
    void flags_data();
    void flags();
    void registryIsReadInOrder();
    void singletonProbesThisComputer();
#ifdef Q_OS_LINUX
    void linuxAdapters();
#endif
};

void TestComputeInfo::flags_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Flags>("flags");
    QTest::addColumn<QString>("finding");

    const Flags none{false, false, false};
    const Flags high{false, false, true};
    addRow(ProcessorPlace, "Intel(R) Core(TM) i3-2100", high, "CPU: >= intel Core(M) i3");
    addRow(ProcessorPlace, "Intel(R) Core(TM) i2-0000", none, " CPU: < intel Core(M) i3");
    addRow(ProcessorPlace, "Intel(R) Core(TM) i13", none, " CPU: < intel Core(M) i3");
    addRow(ProcessorPlace, "Intel(R) Core(TM) i", none, " CPU: < intel Core(M) i3");
    addRow(ProcessorPlace, "Intel(R) Core(TM) M-5Y10", none, " CPU: not interl Core(M)");
    addRow(ProcessorPlace, "AMD Ryzen 5 3500U", high, "CPU AMD");
    addRow(ProcessorPlace, "Core(TM) i7 by nobody", none);

    const QString place = adapterPlaces("igfx").last();
    const Flags both{true, true, false};
    const Flags older{false, true, false};
    // "UHD Graphics" stands later in the list.
    addRow(place, "UHD Graphics 620", both, R"(Intel dCard H265: "Graphics 620")");
    addRow(place, "Intel(R) HD Graphics 4000", older, R"(Intel dCard H264: "Graphics 4000")");
    addRow(place, "NVIDIA GeForce GTX 1050 Ti", both, R"(NVIDIA dCard H265: "GTX 1050")");
    addRow(place, "NVIDIA GeForce GT 730", older, R"(NVIDIA dCard H264: "GT 730")");
    addRow(place, "AMD Radeon RX 5700 XT", both, R"(AMD dCard H265: "RX 5700")");
    addRow(place, "ATI Radeon HD 4650", older, R"(AMD dCard H264: " HD 4650")");
    addRow(place, "HD 4650", none); // without the entry's leading blank
    // The list's own spelling counts.
    addRow(place, "NVIDIA Tesia T4", both, R"(NVIDIA dCard H265: "Tesia T4")");
    addRow(place, "NVIDIA Tesla T4", none);
    addRow(place, "intel uhd graphics 620", none);
}

void TestComputeInfo::flags()
{
    QFETCH(QString, place);
    QFETCH(QString, text);

    const Probe probe({{place, text}});
    const ComputeInfo &info = probe.info;
    QTEST((Flags{info.isHDDecodeH265, info.isHDDecodeH264, info.mCpuLevelH}), "flags");
    QTEST(probe.log.value(2), "finding");
}

/** With a description repeated, and adapters of all vendors: every list reports its own. */
void TestComputeInfo::registryIsReadInOrder()
{
    const QStringList intel = adapterPlaces("igfx");
    const QStringList nvidia = adapterPlaces("nvlddmkm");
    const QStringList amd = adapterPlaces("amdkmdap");
    const Probe probe({{ProcessorPlace, "AMD"},
                       {intel[7], "UHD Graphics 630"},
                       {intel[0], "Intel UHD"},
                       {intel[2], "Intel UHD"},
                       {nvidia[4], "GeForce GTX 960"},
                       {amd[3], "Radeon RX 5500"}});

    QCOMPARE(probe.reads, QStringList(ProcessorPlace) + intel + nvidia + amd);
    QCOMPARE(probe.info.hardwareInfo, QString("Intel UHD\nIntel UHD\nUHD Graphics 630\n"
                                              "GeForce GTX 960\nRadeon RX 5500\n"));
    QCOMPARE(probe.log.join('\n'), R"(CPU Info: "AMD"
Card Info: "Intel UHD\nIntel UHD\nUHD Graphics 630\nGeForce GTX 960\nRadeon RX 5500\n"
CPU AMD
Intel dCard H265: "Graphics 630"
AMD dCard H265: "RX 5500"
NVIDIA dCard H265: "GTX 960"
Intel dCard H264: "Graphics 630"
AMD dCard H264: "RX 5500"
NVIDIA dCard H264: "GTX 960"
isHDDecodeH265 = true
isHDDecodeH264 = true
mCpuLevelH = true)");
}

/** What the system says here is open, so only the brand on Linux is compared. */
void TestComputeInfo::singletonProbesThisComputer()
{
    QPointer<ComputeInfo> first;
    const QStringList log = debugLines([&] { first = ComputeInfo::GetInstance(); });
    QVERIFY(log.value(0).startsWith("CPU Info: "));
#ifdef Q_OS_LINUX
    QFile processors("/proc/cpuinfo");
    QVERIFY(processors.open(QIODevice::ReadOnly));
    const QRegularExpression line("^model name\\s*: (.*)$", QRegularExpression::MultilineOption);
    const QString brand = line.match(processors.readAll()).captured(1);
    QCOMPARE(log.first(), QStringLiteral("CPU Info: \"%1\"").arg(brand));
#endif
    QCOMPARE(ComputeInfo::GetInstance(), first.data());
    ComputeInfo::ReleaseInstance();
    QVERIFY(!first);
}

#ifdef Q_OS_LINUX

namespace {

const QByteArray Names = "8086  Ivory\n\tfff1  Graphics 620\n\tfff2  Disk\n"
                         "10de  Nut\n\tfff1  GTX 1050\n"
                         "1002  Amber\n\tfff1  RX 5700\n"
                         "1022  Amber Too\n\tfff1  Vega 8 Graphics\n";

void write(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    QVERIFY(QDir().mkpath(QFileInfo(fileName).path()));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

/** Lays out a device of the bus as the kernel does: a folder with a file for each number. */
void addDevice(const QString &bus, int slot, const char *type, const char *vendor,
               const char *device)
{
    const QString folder = QStringLiteral("%1/devices/0000:00:0%2.0/").arg(bus).arg(slot);
    write(folder + "class", type);
    write(folder + "vendor", vendor);
    write(folder + "device", device);
}

QString textOf(const LinuxSources &sources, AdapterVendor vendor)
{
    return LinuxDescription(sources).adapterDescriptions(vendor);
}

} // namespace

/** Only what the database knows of the known vendors' display adapters is told. */
void TestComputeInfo::linuxAdapters()
{
    const QTemporaryDir folder;
    const LinuxSources sources{"", folder.filePath("bus"), folder.filePath("names")};
    QCOMPARE(textOf(sources, AdapterVendor::Intel), QString()); // without a bus
    addDevice(sources.devices, 0, "0x030000", "0x8086", "0xfff1");
    addDevice(sources.devices, 1, "0x030200", "0x10de", "0xfff1"); // without a screen
    addDevice(sources.devices, 2, "0x038000", "0x1002", "0xfff1");
    addDevice(sources.devices, 3, "0x030000", "0x1022", "0xfff1");
    addDevice(sources.devices, 4, "0x010802", "0x8086", "0xfff2"); // no display adapter
    addDevice(sources.devices, 5, "0x030000", "0x8086", "0xfff3"); // without a name
    addDevice(sources.devices, 6, "0x030000", "0x8086", "0xfff1");
    QVERIFY(QFile::remove(sources.devices + "/devices/0000:00:06.0/vendor")); // just vanishing
    QCOMPARE(textOf(sources, AdapterVendor::Intel), QString());               // without a database
    write(sources.names, "\t\t\tfff1\n" + Names);
    QCOMPARE(textOf(sources, AdapterVendor::Intel), QString()); // with a damaged one

    write(sources.names, Names);
    QCOMPARE(textOf(sources, AdapterVendor::Intel), "Ivory Graphics 620\n");
    QCOMPARE(textOf(sources, AdapterVendor::Nvidia), "Nut GTX 1050\n");
    QStringList amd = textOf(sources, AdapterVendor::Amd).split('\n');
    amd.sort(); // the kernel lists devices in no order
    QCOMPARE(amd, (QStringList{"", "Amber RX 5700", "Amber Too Vega 8 Graphics"}));
}

#endif

QTEST_GUILESS_MAIN(TestComputeInfo)
#include "tst_computeinfo.moc"
