// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <memory>

class HardwareDescription;

/**
 * Tells whether this computer can be trusted with high-resolution H.264 and H.265 video.
 *
 * Software alone does not keep up with large recordings, and playing them on a computer that lacks
 * the hardware only looks like a fault of the recording. So the probe compares the display adapters
 * with lists of models that decode a codec in hardware, and takes the processor's brand for its
 * strength. It forbids nothing: the main window can ask it about a large recording and warn the
 * user.
 *
 * A process-wide singleton, used on the GUI thread only. It probes once, when it is first asked
 * for, and keeps the answer until it is released. It never fails: what the system does not tell
 * leaves a flag false.
 */
class ComputeInfo : public QObject
{
    Q_OBJECT

public:
    /** A probe of the given description, which must not be null, that has not run yet. The program
     *  itself uses GetInstance(). */
    explicit ComputeInfo(std::unique_ptr<const HardwareDescription> hardware,
                         QObject *parent = nullptr);
    ~ComputeInfo() override;

    /** The singleton over this computer, made and probed on the first call. Owned by itself; see
     *  ReleaseInstance(). */
    static ComputeInfo *GetInstance();
    /** Deletes the singleton; the next GetInstance() makes a new one. */
    static void ReleaseInstance();

    /** The probe: sets the members below and logs what it found. */
    void updateCpuAndCardInfo();

    /** What the vendor's display adapters are called, each ended by a line feed. */
    QString getIntelDcardInformation();
    QString getNVIDIADcardInformation();
    QString getAMDDcardInformation();

    bool isHDDecodeH265 = false; ///< an adapter decodes H.265 in hardware
    bool isHDDecodeH264 = false; ///< an adapter decodes H.264 in hardware
    bool mCpuLevelH = false;     ///< the processor is an Intel Core i3 or better, or any AMD
    QString hardwareInfo;        ///< the descriptions of all adapters, for diagnostics

private:
    void updateCpuLevel(const QString &processor);
    void updateDecodeFlags(const QString &adapters);

    std::unique_ptr<const HardwareDescription> mHardware;

    static ComputeInfo *instance;
};
