// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "computeinfo.h"

#include <QDebug>

#include "decodemodels.h"
#include "hardwaredescription.h"

#include <utility>

namespace {

const QString CoreMark = QStringLiteral("Core(TM) i");
constexpr int LowestHighCore = 3;

/** The digit after the family's mark; 0 for anything else. */
int coreDigit(const QString &processor)
{
    return processor.mid(processor.indexOf(CoreMark) + CoreMark.size(), 1).toInt();
}

// Who searches a log for these lines finds them by their wording, with "Core(M)", "interl" and the
// leading blanks: it does not change.
bool isHighIntel(const QString &processor)
{
    if (!processor.contains(CoreMark)) {
        qDebug() << " CPU: not interl Core(M)";
        return false;
    }
    const bool isHigh = coreDigit(processor) >= LowestHighCore;
    qDebug() << (isHigh ? "CPU: >= intel Core(M) i3" : " CPU: < intel Core(M) i3");
    return isHigh;
}

/** Whether one of the models occurs in the text; logs the first that does. */
bool findModel(const QString &text, const QStringList &models, const char *logStart)
{
    for (const QString &model : models) {
        if (text.contains(model)) {
            qDebug() << logStart << model;
            return true;
        }
    }
    return false;
}

} // namespace

ComputeInfo *ComputeInfo::instance = nullptr;

ComputeInfo::ComputeInfo(std::unique_ptr<const HardwareDescription> hardware, QObject *parent)
    : QObject(parent), mHardware(std::move(hardware))
{}

ComputeInfo::~ComputeInfo() = default;

ComputeInfo *ComputeInfo::GetInstance()
{
    if (!instance) {
        instance = new ComputeInfo(HardwareDescription::ofThisComputer());
        instance->updateCpuAndCardInfo();
    }
    return instance;
}

void ComputeInfo::ReleaseInstance()
{
    delete instance;
    instance = nullptr;
}

void ComputeInfo::updateCpuAndCardInfo()
{
    const QString processor = mHardware->processorName();
    qDebug() << "CPU Info:" << processor;
    QString adapters = getIntelDcardInformation();
    adapters += getNVIDIADcardInformation();
    adapters += getAMDDcardInformation();
    qDebug() << "Card Info:" << adapters;
    updateCpuLevel(processor);
    updateDecodeFlags(adapters);
    hardwareInfo = adapters;
    qDebug() << "isHDDecodeH265 =" << isHDDecodeH265;
    qDebug() << "isHDDecodeH264 =" << isHDDecodeH264;
    qDebug() << "mCpuLevelH =" << mCpuLevelH;
}

QString ComputeInfo::getIntelDcardInformation()
{
    return mHardware->adapterDescriptions(AdapterVendor::Intel);
}

QString ComputeInfo::getNVIDIADcardInformation()
{
    return mHardware->adapterDescriptions(AdapterVendor::Nvidia);
}

QString ComputeInfo::getAMDDcardInformation()
{
    return mHardware->adapterDescriptions(AdapterVendor::Amd);
}

// The names of AMD processors do not tell their generation by one digit, as Intel's do. Any of them
// counts as high, and the adapter decides.
void ComputeInfo::updateCpuLevel(const QString &processor)
{
    if (processor.contains(QLatin1String("Intel"))) {
        mCpuLevelH = isHighIntel(processor);
    } else if (processor.contains(QLatin1String("AMD"))) {
        qDebug() << "CPU AMD";
        mCpuLevelH = true;
    } else {
        mCpuLevelH = false;
    }
}

// A computer with adapters of two vendors decodes what either of them can. So every list searches
// the texts of all vendors, and a flag once set is never taken back.
void ComputeInfo::updateDecodeFlags(const QString &adapters)
{
    const DecodeModels models = decodeModels();
    const struct
    {
        const char *logStart;
        const QStringList &models;
        bool &flag;
    } searches[] = {
        {"Intel dCard H265:", models.intelH265, isHDDecodeH265},
        {"AMD dCard H265:", models.amdH265, isHDDecodeH265},
        {"NVIDIA dCard H265:", models.nvidiaH265, isHDDecodeH265},
        {"Intel dCard H264:", models.intelH264, isHDDecodeH264},
        {"AMD dCard H264:", models.amdH264, isHDDecodeH264},
        {"NVIDIA dCard H264:", models.nvidiaH264, isHDDecodeH264},
    };
    for (const auto &search : searches) {
        if (findModel(adapters, search.models, search.logStart))
            search.flag = true;
    }
}
