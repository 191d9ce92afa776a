// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "computeinfo.h"
#include "decodemodels.h"
#include "registrydescription.h"

#ifdef Q_OS_LINUX
#include "linuxdescription.h"
#endif

#include <QtTest>

namespace {

const QString ProcessorPlace =
    QStringLiteral(R"(HKEY_LOCAL_MACHINE\HARDWARE\DESCRIPTION\System\CentralProcessor\0)"
                   "|ProcessorNameString");

/** The eight places of a driver's adapters, in the order of reading. */
QStringList adapterPlaces(const QString &service)
{
    QStringList places;
    for (const QString value : {"DeviceDesc", "Device Description"}) {
        for (const QString set : {"CurrentControlSet", "ControlSet001"}) {
            const QString driver =
                R"(HKEY_LOCAL_MACHINE\SYSTEM\)" + set + R"(\Services\)" + service;
            places << driver + R"(\Device0|)" + value << driver + R"(\Video|)" + value;
        }
    }
    return places;
}

/** A registry in memory, by "key|value name", which notes what is read. */
struct Registry
{
    QMap<QString, QString> texts;
    QStringList reads;

    /** A description that reads from here, and must not outlive this. */
    std::unique_ptr<const HardwareDescription> description()
    {
        return std::make_unique<RegistryDescription>(
            [this](const QString &key, const QString &name) {
                reads << key + QLatin1Char('|') + name;
                return texts.value(reads.last());
            });
    }
};

QStringList loggedLines;

void keepDebugLine(QtMsgType type, const QMessageLogContext &, const QString &line)
{
    if (type == QtDebugMsg)
        loggedLines << line;
}

/** Collects the debug lines while it lives. */
class DebugLines
{
public:
    DebugLines() { loggedLines.clear(); }
    ~DebugLines() { qInstallMessageHandler(mBefore); }
    QStringList lines() const { return loggedLines; }

private:
    const QtMessageHandler mBefore = qInstallMessageHandler(keepDebugLine);
};

QString quoted(QString text)
{
    return QLatin1Char('"') + text.replace(QLatin1Char('\n'), QLatin1String("\\n")) +
           QLatin1Char('"');
}

/** All that a probe logs: the lines between the texts and the flags are given. */
QStringList probeLog(const QString &processor, const QString &adapters, const QStringList &between,
                     bool h265, bool h264, bool level)
{
    const auto word = [](bool flag) { return flag ? QStringLiteral("true") : "false"; };
    return QStringList{"CPU Info: " + quoted(processor), "Card Info: " + quoted(adapters)} +
           between +
           QStringList{"isHDDecodeH265 = " + word(h265), "isHDDecodeH264 = " + word(h264),
                       "mCpuLevelH = " + word(level)};
}

} // namespace

class TestComputeInfo : public QObject
{
    Q_OBJECT

private slots:
    void processorLevel_data();
    void processorLevel();
    void decodeFlags_data();
    void decodeFlags();
    void registryIsReadInOrder();
    void whatDecodesH265DecodesH264();
    void singletonProbesThisComputer();
#ifdef Q_OS_LINUX
    void linuxAdapters();
    void linuxTellsNothing_data();
    void linuxTellsNothing();
#endif
};

void TestComputeInfo::processorLevel_data()
{
    QTest::addColumn<QString>("processor");
    QTest::addColumn<bool>("isHigh");
    QTest::addColumn<QStringList>("log");

    const QStringList high{"CPU: >= intel Core(M) i3"};
    const QStringList low{" CPU: < intel Core(M) i3"};
    const QStringList other{" CPU: not interl Core(M)"};
    QTest::newRow("i5") << "Intel(R) Core(TM) i5-8250U CPU" << true << high;
    QTest::newRow("i3, the lowest") << "Intel(R) Core(TM) i3-2100" << true << high;
    QTest::newRow("i2, below it") << "Intel(R) Core(TM) i2-0000" << false << low;
    QTest::newRow("no digit") << "Intel(R) Core(TM) iX-9000" << false << low;
    QTest::newRow("cut off") << "Intel(R) Core(TM) i" << false << low;
    QTest::newRow("only one digit counts") << "Intel(R) Core(TM) i13" << false << low;
    QTest::newRow("Celeron") << "Intel(R) Celeron(R) CPU N3060" << false << other;
    QTest::newRow("Core M") << "Intel(R) Core(TM) M-5Y10" << false << other;
    QTest::newRow("AMD") << "AMD Ryzen 5 3500U" << true << QStringList{"CPU AMD"};
    QTest::newRow("another maker") << "Core(TM) i7 by nobody" << false << QStringList{};
    QTest::newRow("empty registry") << QString() << false << QStringList{};
}

void TestComputeInfo::processorLevel()
{
    QFETCH(QString, processor);
    QFETCH(bool, isHigh);
    QFETCH(QStringList, log);

    Registry registry{{{ProcessorPlace, processor}}, {}};
    ComputeInfo info(registry.description());
    info.mCpuLevelH = !isHigh;
    const DebugLines debug;
    info.updateCpuAndCardInfo();

    QCOMPARE(debug.lines(), probeLog(processor, QString(), log, false, false, isHigh));
    QCOMPARE(info.mCpuLevelH, isHigh);
    QVERIFY(!info.isHDDecodeH265);
    QVERIFY(!info.isHDDecodeH264);
}

void TestComputeInfo::decodeFlags_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("adapter");
    QTest::addColumn<QString>("h265Log");
    QTest::addColumn<QString>("h264Log");

    QTest::newRow("Intel, both; an earlier entry is part of a later one")
        << "igfx"
        << "Intel(R) UHD Graphics 620"
        << R"(Intel dCard H265: "Graphics 620")"
        << R"(Intel dCard H264: "Graphics 620")";
    QTest::newRow("Intel, H.264 only")
        << "igfx"
        << "Intel(R) HD Graphics 4000" << QString() << R"(Intel dCard H264: "Graphics 4000")";
    QTest::newRow("NVIDIA, both") << "nvlddmkm"
                                  << "NVIDIA GeForce GTX 1050 Ti"
                                  << R"(NVIDIA dCard H265: "GTX 1050")"
                                  << R"(NVIDIA dCard H264: "GTX 1050")";
    QTest::newRow("NVIDIA, H.264 only")
        << "nvlddmkm"
        << "NVIDIA GeForce GT 730" << QString() << R"(NVIDIA dCard H264: "GT 730")";
    QTest::newRow("AMD, both") << "amdkmdap"
                               << "AMD Radeon RX 5700 XT"
                               << R"(AMD dCard H265: "RX 5700")"
                               << R"(AMD dCard H264: "RX 5700")";
    QTest::newRow("AMD, H.264 only")
        << "amdkmdap"
        << "ATI Radeon HD 4650" << QString() << R"(AMD dCard H264: " HD 4650")";
    QTest::newRow("entry with a leading blank") << "amdkmdap"
                                                << "HD 4650" << QString() << QString();
    QTest::newRow("spelling of the list") << "nvlddmkm"
                                          << "NVIDIA Tesia T4"
                                          << R"(NVIDIA dCard H265: "Tesia T4")"
                                          << R"(NVIDIA dCard H264: "Tesia T4")";
    QTest::newRow("spelling of the maker") << "nvlddmkm"
                                           << "NVIDIA Tesla T4" << QString() << QString();
    QTest::newRow("case counts") << "igfx"
                                 << "intel uhd graphics 620" << QString() << QString();
}

void TestComputeInfo::decodeFlags()
{
    QFETCH(QString, service);
    QFETCH(QString, adapter);
    QFETCH(QString, h265Log);
    QFETCH(QString, h264Log);

    Registry registry{{{adapterPlaces(service).last(), adapter}}, {}};
    ComputeInfo info(registry.description());
    const DebugLines debug;
    info.updateCpuAndCardInfo();

    QStringList found{h265Log, h264Log};
    found.removeAll(QString());
    const bool h265 = !h265Log.isEmpty();
    const bool h264 = !h264Log.isEmpty();
    QCOMPARE(debug.lines(), probeLog(QString(), adapter + '\n', found, h265, h264, false));
    QCOMPARE(info.isHDDecodeH265, h265);
    QCOMPARE(info.isHDDecodeH264, h264);
}

/** With a description repeated, and adapters of all vendors: every list reports its own. */
void TestComputeInfo::registryIsReadInOrder()
{
    const QStringList intel = adapterPlaces("igfx");
    const QStringList nvidia = adapterPlaces("nvlddmkm");
    const QStringList amd = adapterPlaces("amdkmdap");
    Registry registry{{{intel[7], "UHD Graphics 630"},
                       {intel[0], "Intel UHD"},
                       {intel[2], "Intel UHD"},
                       {nvidia[4], "GeForce GTX 960"},
                       {nvidia[1], "GeForce 9"},
                       {amd[3], "Radeon RX 5500"}},
                      {}};
    ComputeInfo info(registry.description());
    const DebugLines debug;
    info.updateCpuAndCardInfo();

    QCOMPARE(registry.reads, QStringList(ProcessorPlace) + intel + nvidia + amd);
    const QString intelText = "Intel UHD\nIntel UHD\nUHD Graphics 630\n";
    const QString nvidiaText = "GeForce 9\nGeForce GTX 960\n";
    const QString amdText = "Radeon RX 5500\n";
    QCOMPARE(info.hardwareInfo, intelText + nvidiaText + amdText);
    QCOMPARE(info.getIntelDcardInformation(), intelText);
    QCOMPARE(info.getNVIDIADcardInformation(), nvidiaText);
    QCOMPARE(info.getAMDDcardInformation(), amdText);
    const QStringList found{
        R"(Intel dCard H265: "Graphics 630")", R"(AMD dCard H265: "RX 5500")",
        R"(NVIDIA dCard H265: "GTX 960")",     R"(Intel dCard H264: "Graphics 630")",
        R"(AMD dCard H264: "RX 5500")",        R"(NVIDIA dCard H264: "GTX 960")"};
    QCOMPARE(debug.lines(), probeLog(QString(), info.hardwareInfo, found, true, true, false));
}

/** No adapter decodes the newer codec alone: an entry in one list only would be a typing fault. */
void TestComputeInfo::whatDecodesH265DecodesH264()
{
    const DecodeModels models = decodeModels();
    const std::pair<QStringList, QStringList> pairs[] = {{models.intelH265, models.intelH264},
                                                         {models.amdH265, models.amdH264},
                                                         {models.nvidiaH265, models.nvidiaH264}};
    for (const auto &[h265, h264] : pairs) {
        QVERIFY(!h265.isEmpty());
        for (const QString &model : h265)
            QVERIFY2(h264.contains(model), qPrintable(model));
    }
}

/** What the system says here is open, so only the brand on Linux is compared. */
void TestComputeInfo::singletonProbesThisComputer()
{
    const DebugLines debug;
    QPointer<ComputeInfo> first = ComputeInfo::GetInstance();
    QCOMPARE(ComputeInfo::GetInstance(), first.data());
    QCOMPARE(debug.lines().filter(QRegularExpression("^CPU Info: ")).size(), 1);
    QCOMPARE(first->hardwareInfo, first->getIntelDcardInformation() +
                                      first->getNVIDIADcardInformation() +
                                      first->getAMDDcardInformation());
#ifdef Q_OS_LINUX
    QFile processors("/proc/cpuinfo");
    QVERIFY(processors.open(QIODevice::ReadOnly));
    const QRegularExpression line("^model name\\s*: (.*)$", QRegularExpression::MultilineOption);
    const QString brand = line.match(processors.readAll()).captured(1);
    QCOMPARE(debug.lines().first(), "CPU Info: " + quoted(brand));
#endif

    ComputeInfo::ReleaseInstance();
    QVERIFY(!first);
    QVERIFY(ComputeInfo::GetInstance());
    QCOMPARE(debug.lines().filter(QRegularExpression("^CPU Info: ")).size(), 2);
    ComputeInfo::ReleaseInstance();
}

#ifdef Q_OS_LINUX

namespace {

void write(const QString &fileName, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(fileName).path()));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

const QByteArray Names = "8086  Ivory\n\tfff1  Graphics 620\n\tfff2  Disk\n"
                         "10de  Nut\n\tfff1  GTX 1050\n"
                         "1002  Amber\n\tfff1  RX 5700\n"
                         "1022  Amber Too\n\tfff1  Vega 8 Graphics\n"
                         "1234  Foreign\n\tfff1  UHD Graphics\n";

/** Lays out a device of the bus as the kernel does: a folder with a file for each number. */
void addDevice(const QString &bus, int slot, const char *type, const char *vendor,
               const char *device)
{
    const QString folder = QStringLiteral("%1/devices/0000:00:0%2.0/").arg(bus).arg(slot);
    write(folder + "class", type);
    write(folder + "vendor", vendor);
    write(folder + "device", device);
}

LinuxSources sourcesIn(const QTemporaryDir &folder)
{
    return {folder.filePath("cpuinfo"), folder.filePath("bus"), folder.filePath("names")};
}

} // namespace

/** Only what the database knows of the known vendors' display adapters is told. */
void TestComputeInfo::linuxAdapters()
{
    const QTemporaryDir folder;
    const LinuxSources sources = sourcesIn(folder);
    write(sources.names, Names);
    addDevice(sources.devices, 0, "0x030000", "0x8086", "0xfff1");
    addDevice(sources.devices, 1, "0x030200", "0x10de", "0xfff1"); // without a screen
    addDevice(sources.devices, 2, "0x038000", "0x1002", "0xfff1");
    addDevice(sources.devices, 3, "0x030000", "0x1022", "0xfff1");
    addDevice(sources.devices, 4, "0x030000", "0x1234", "0xfff1"); // another vendor
    addDevice(sources.devices, 5, "0x010802", "0x8086", "0xfff2"); // no display adapter
    addDevice(sources.devices, 6, "0x030000", "0x8086", "0xfff3"); // without a name
    addDevice(sources.devices, 7, "0x030000", "0x8086", "0xfff1");
    QVERIFY(QFile::remove(sources.devices + "/devices/0000:00:07.0/vendor")); // just vanishing

    const LinuxDescription description(sources);
    QCOMPARE(description.adapterDescriptions(AdapterVendor::Intel), "Ivory Graphics 620\n");
    QCOMPARE(description.adapterDescriptions(AdapterVendor::Nvidia), "Nut GTX 1050\n");
    // The kernel lists devices in no order.
    QStringList amd = description.adapterDescriptions(AdapterVendor::Amd).split('\n');
    amd.sort();
    QCOMPARE(amd, (QStringList{"", "Amber RX 5700", "Amber Too Vega 8 Graphics"}));
}

void TestComputeInfo::linuxTellsNothing_data()
{
    QTest::addColumn<bool>("hasBus");
    QTest::addColumn<bool>("hasAdapter");
    QTest::addColumn<QByteArray>("names");

    QTest::newRow("no bus") << false << false << Names;
    QTest::newRow("no device") << true << false << Names;
    QTest::newRow("no database") << true << true << QByteArray();
    QTest::newRow("damaged database") << true << true << QByteArray("\t\t\tfff1\n") + Names;
}

void TestComputeInfo::linuxTellsNothing()
{
    QFETCH(bool, hasBus);
    QFETCH(bool, hasAdapter);
    QFETCH(QByteArray, names);

    const QTemporaryDir folder;
    const LinuxSources sources = sourcesIn(folder);
    if (hasBus)
        QVERIFY(QDir().mkpath(sources.devices + "/devices"));
    if (hasAdapter)
        addDevice(sources.devices, 0, "0x030000", "0x8086", "0xfff1");
    if (!names.isEmpty())
        write(sources.names, names);

    const LinuxDescription description(sources);
    QCOMPARE(description.processorName(), QString());
    for (AdapterVendor vendor : {AdapterVendor::Intel, AdapterVendor::Nvidia, AdapterVendor::Amd})
        QCOMPARE(description.adapterDescriptions(vendor), QString());
}

#endif

QTEST_GUILESS_MAIN(TestComputeInfo)
#include "tst_computeinfo.moc"
