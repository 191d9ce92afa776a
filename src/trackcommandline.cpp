// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackcommandline.h"

#include "sampletime.h"

#include <QFileInfo>

namespace {

const QString FormatOption = QStringLiteral("format");
const QString OutputOption = QStringLiteral("output");
const QString UtcOffsetOption = QStringLiteral("utc-offset");
const QString SpeedUnitOption = QStringLiteral("speed-unit");
const QString JoinOption = QStringLiteral("join");
const QString InfoOption = QStringLiteral("info");
const QString ForceOption = QStringLiteral("force");

} // namespace

TrackCommandLine::TrackCommandLine()
{
    mParser.setApplicationDescription(
        QStringLiteral("Writes the telemetry of dash-camera recordings as tracks and tables."));
    mParser.addHelpOption();
    mParser.addVersionOption();
    mParser.addOptions({
        {{QStringLiteral("f"), FormatOption},
         QStringLiteral("gpx, csv, geojson or json; by default as the output's name ends, else gpx."
                        " With --info: json, by default text."),
         FormatOption},
        {{QStringLiteral("o"), OutputOption},
         QStringLiteral("File, or folder, to write to; \"-\" is standard output. By default one"
                        " recording goes to standard output, several to files in the current"
                        " folder."),
         OutputOption},
        {UtcOffsetOption,
         QStringLiteral("How far the camera's clock was ahead of UTC, such as +01:00. Without it"
                        " tracks have no UTC times, as recordings do not tell."),
         QStringLiteral("offset")},
        {SpeedUnitOption, QStringLiteral("kmh (default) or mph, for tables, JSON and --info."),
         QStringLiteral("unit")},
        {JoinOption, QStringLiteral("Write one document of all recordings.")},
        {InfoOption, QStringLiteral("Print facts and figures of each recording instead.")},
        {ForceOption, QStringLiteral("Overwrite files.")},
    });
    mParser.addPositionalArgument(QStringLiteral("recordings"),
                                  QStringLiteral("MP4, MOV or AVI files, or folders of them"),
                                  QStringLiteral("recordings..."));
}

bool TrackCommandLine::parse(const QStringList &arguments)
{
    mJob = TrackJob();
    mErrorText = mParser.parse(arguments) ? QString() : mParser.errorText();
    if (mErrorText.isEmpty() && !asksForHelp() && !asksForVersion())
        mErrorText = mistake();
    return mErrorText.isEmpty();
}

bool TrackCommandLine::asksForHelp() const
{
    return mParser.isSet(QStringLiteral("help"));
}

bool TrackCommandLine::asksForVersion() const
{
    return mParser.isSet(QStringLiteral("version"));
}

QString TrackCommandLine::helpText() const
{
    return mParser.helpText();
}

/** Takes over what was asked for. Returns what is wrong with it; empty if nothing is. */
QString TrackCommandLine::mistake()
{
    mJob.inputs = mParser.positionalArguments();
    mJob.output = mParser.value(OutputOption);
    mJob.isJoined = mParser.isSet(JoinOption);
    mJob.isInfo = mParser.isSet(InfoOption);
    mJob.mayOverwrite = mParser.isSet(ForceOption);
    if (mJob.inputs.isEmpty())
        return QStringLiteral("no recording is named");
    if (mParser.isSet(OutputOption) && mJob.output.isEmpty())
        return QStringLiteral("the name of the output is empty");
    if (mJob.isInfo && (mJob.isJoined || mParser.isSet(OutputOption)))
        return QStringLiteral("--info goes to standard output, and cannot be joined");
    const QString reason = readFormat();
    return reason.isEmpty() ? readOptions() : reason;
}

QString TrackCommandLine::readFormat()
{
    if (!mParser.isSet(FormatOption)) {
        mJob.format =
            TrackWriter::formatNamed(QFileInfo(mJob.output).suffix()).value_or(TrackWriter::Gpx);
        return QString();
    }
    const QString name = mParser.value(FormatOption);
    const std::optional<TrackWriter::Format> format = TrackWriter::formatNamed(name);
    if (mJob.isInfo) {
        mJob.isJsonInfo = format == TrackWriter::Json;
        const bool isKnown = mJob.isJsonInfo || name == QLatin1String("text");
        return isKnown ? QString() : QStringLiteral("--info is written as text or json");
    }
    if (!format)
        return QStringLiteral("\"%1\" is no format: gpx, csv, geojson or json").arg(name);
    mJob.format = *format;
    return QString();
}

QString TrackCommandLine::readOptions()
{
    if (mParser.isSet(UtcOffsetOption)) {
        const QString text = mParser.value(UtcOffsetOption);
        mJob.options.utcOffsetS = SampleTime::utcOffsetFrom(text);
        if (!mJob.options.utcOffsetS)
            return QStringLiteral("\"%1\" is no offset from UTC such as +01:00").arg(text);
    }
    const QString unit = mParser.value(SpeedUnitOption);
    if (unit == QLatin1String("mph"))
        mJob.options.speedUnit = TrackOptions::MilesPerHour;
    else if (!unit.isEmpty() && unit != QLatin1String("kmh"))
        return QStringLiteral("\"%1\" is no unit of speed: kmh or mph").arg(unit);
    return QString();
}
