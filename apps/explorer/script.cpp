// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "script.h"

#include "camerasource.h"
#include "picture/pixelformat.h"
#include "settings/settingsloader.h"
#include "settings/settingssaver.h"
#include "settings/valuetext.h"

#include <GenApi/GenApi.h>
#include <OrvCameraApi/streaming.h>
#include <OrvCameraGuiApi/camera_api/orvcam.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <csignal>
#include <cstdio>

#include <unistd.h>

namespace {

constexpr int longestCommand = 10000; // milliseconds
constexpr int longestPicture = 60000; // milliseconds; a stream that gets nothing ends sooner
constexpr int longestEnd = 5000; // milliseconds
constexpr int period = 5; // milliseconds

volatile std::sig_atomic_t wasInterrupted = 0;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Script)
};

void interrupt(int)
{
    wasInterrupted = 1;
}

bool isInterrupted()
{
    return wasInterrupted != 0;
}

void checkProgress(int, int, const QByteArray &)
{
    if (isInterrupted())
        throw SettingsInterrupted();
}

/** In one line, and nothing that a terminal obeys: cameras and files have a part in it. */
QByteArray withoutControls(const QString &text)
{
    QString line;
    for (const QChar each : text) {
        if (each.category() == QChar::Other_Control)
            line += QStringLiteral("\\x%1").arg(each.unicode(), 2, 16, QLatin1Char('0'));
        else
            line += each;
    }
    return line.toUtf8();
}

void complain(const QString &message)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()),
                 withoutControls(message).constData());
}

ExitCode refuse(const QString &message)
{
    complain(message);
    return Refused;
}

ExitCode print(const QByteArray &line)
{
    const bool isWritten =
        std::fwrite(line.constData(), 1, std::size_t(line.size()), stdout) == std::size_t(line.size())
        && std::fputc('\n', stdout) != EOF && std::fflush(stdout) == 0;
    if (!isWritten)
        complain(Text::tr("Cannot write to standard output."));
    return isWritten ? AllFine : NoFile;
}

/** Until it is so, the time is over, or somebody interrupts. */
template <typename Condition>
bool waitFor(int milliseconds, const Condition &condition)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (isInterrupted() || clock.elapsed() > milliseconds)
            return false;
        QThread::msleep(period);
    }
    return true;
}

GenApi::INode *nodeOf(const QString &name, CameraSource &source)
{
    GenApi::INode *node = nullptr;
    failureOf([&] { node = source.nodeMap()->GetNode(name.toUtf8().constData()); });
    return node;
}

QString stateOf(const ListedCamera &camera)
{
    switch (camera.accessStatus) {
    case OrvCam::AccessStatusNoAccess:
        return QStringLiteral("taken");
    case OrvCam::AccessStatusReadOnly:
        return QStringLiteral("read only");
    case OrvCam::AccessStatusIpSubnetMismatch:
        return QStringLiteral("out of reach");
    default:
        return QStringLiteral("free");
    }
}

/**
 * One picture, once the stream has stopped again; null, and \a failure tells why. The first ones may be lost on their
 * way.
 */
std::shared_ptr<const OrvStreams::Frame> takeFrame(CameraSource &source, QString &failure)
{
    std::string why;
    const std::unique_ptr<OrvStreams::Stream> stream =
        source.device() ? OrvStreams::Stream::create(*source.device(), &why) : nullptr;
    failure = QString::fromStdString(why);
    if (!stream)
        return nullptr;
    const auto hasStopped = [&stream] { return stream->state() == OrvStreams::State::Stopped; };
    stream->start();
    const bool isDone = waitFor(longestPicture, [&] { return stream->statistics().received > 0 || hasStopped(); });
    stream->stop();
    QElapsedTimer clock; // also for somebody who interrupts
    for (clock.start(); !hasStopped() && clock.elapsed() < longestEnd;)
        QThread::msleep(period);
    failure = QString::fromStdString(stream->failure());
    if (failure.isEmpty() && !isDone)
        failure = Text::tr("None has come within %1 s.").arg(longestPicture / 1000);
    else if (failure.isEmpty())
        failure = Text::tr("It was lost on its way.");
    return stream->take();
}

} // namespace

Script::Script()
{
    struct sigaction action
    {
    };
    action.sa_handler = interrupt;
    action.sa_flags = int(SA_RESETHAND);
    for (const int signal : {SIGINT, SIGTERM})
        ::sigaction(signal, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN); // the camera is closed also when nobody reads on
}

ExitCode Script::listCameras()
{
    try {
        const QVector<ListedCamera> cameras = ::listCameras(isInterrupted);
        for (const ListedCamera &camera : cameras) {
            const QByteArray line = withoutControls(camera.id) + '\t' + withoutControls(camera.name) + '\t';
            if (print(line + stateOf(camera).toUtf8()) != AllFine)
                return NoFile;
        }
        if (isInterrupted())
            return Interrupted;
        if (!cameras.isEmpty())
            return AllFine;
        complain(Text::tr("There is no camera."));
    } catch (const CameraSourceError &e) {
        complain(e.message);
    }
    return NoCamera;
}

ExitCode Script::run(const Options &options)
{
    const std::unique_ptr<CameraSource> source = open(options);
    if (!source)
        return isInterrupted() ? Interrupted : NoCamera;
    for (const ScriptStep &step : options.steps) {
        ExitCode code = Interrupted;
        const QString failure = failureOf([&] {
            if (!isInterrupted())
                code = perform(step, *source);
        });
        if (!failure.isEmpty()) // nothing that the step expects
            code = refuse(failure);
        if (code != AllFine)
            return isInterrupted() ? Interrupted : code;
    }
    return AllFine;
}

std::unique_ptr<CameraSource> Script::open(const Options &options)
{
    try {
        return options.xmlFile.isEmpty() ? openCamera(options.cameraId, isInterrupted, Unnamed::Only)
                                         : openDescription(options.xmlFile);
    } catch (const CameraSourceError &e) {
        if (!isInterrupted())
            complain(e.message);
        return nullptr;
    }
}

ExitCode Script::perform(const ScriptStep &step, CameraSource &source)
{
    switch (step.kind) {
    case ScriptStep::Kind::Get:
        return get(step.argument, source);
    case ScriptStep::Kind::Set:
        return set(step.argument, source);
    case ScriptStep::Kind::Save:
        return save(step.argument, source);
    case ScriptStep::Kind::Load:
        return load(step.argument, source);
    case ScriptStep::Kind::Snap:
        return snap(step.argument, source);
    }
    return WrongUse;
}

ExitCode Script::get(const QString &name, CameraSource &source)
{
    GenApi::INode *const feature = FeatureMap(*source.nodeMap()).feature(name.toUtf8());
    if (!feature)
        return refuse(Text::tr("There is no feature '%1' with a value.").arg(name));
    const FeatureValue value = readValue(feature);
    if (!value.failure.isEmpty())
        return refuse(Text::tr("Cannot read '%1': %2").arg(name, value.failure));
    return print(::isatty(STDOUT_FILENO) ? withoutControls(QString::fromUtf8(value.text)) : value.text);
}

ExitCode Script::set(const QString &assignment, CameraSource &source)
{
    const QString name = assignment.section(QLatin1Char('='), 0, 0);
    const QByteArray value = assignment.section(QLatin1Char('='), 1).toUtf8();
    if (dynamic_cast<GenApi::ICommand *>(nodeOf(name, source)))
        return execute(name, source);
    GenApi::INode *const feature = FeatureMap(*source.nodeMap()).feature(name.toUtf8());
    if (!feature)
        return refuse(Text::tr("There is no feature '%1' with a value.").arg(name));
    QString failure = lockedReason(feature);
    if (failure.isEmpty())
        failure = writeValue(feature, value);
    const FeatureValue has = isReadable(feature) ? readValue(feature) : FeatureValue();
    if (!failure.isEmpty())
        failure = Text::tr("Cannot set '%1': %2").arg(name, failure);
    QString remark;
    if (has.failure.isEmpty() && !has.text.isEmpty() && !isSameValue(value, has.text, kindOf(feature)))
        remark = Text::tr("'%1' has the value '%2' now.").arg(name, QString::fromUtf8(has.text));
    const QString message = (failure + QLatin1Char(' ') + remark).trimmed();
    if (!message.isEmpty())
        complain(message);
    return failure.isEmpty() ? AllFine : Refused;
}

/** Until it is done. */
ExitCode Script::execute(const QString &name, CameraSource &source)
{
    auto &command = dynamic_cast<GenApi::ICommand &>(*nodeOf(name, source));
    bool isDone = false;
    const QString failure = failureOf([&] {
        command.Execute();
        isDone = waitFor(longestCommand, [&] { return command.IsDone(); });
    });
    if (!failure.isEmpty())
        return refuse(Text::tr("Cannot execute '%1': %2").arg(name, failure));
    if (isDone || isInterrupted())
        return isDone ? AllFine : Interrupted;
    return refuse(Text::tr("'%1' does not end.").arg(name));
}

ExitCode Script::save(const QString &path, CameraSource &source)
{
    ExitCode onError = Refused;
    try {
        const SettingsFile file = SettingsSaver(*source.nodeMap(), checkProgress).save();
        for (const QString &remark : file.remarks)
            complain(remark);
        onError = NoFile;
        writeSettings(file, path);
        return AllFine;
    } catch (const SettingsInterrupted &) {
        return Interrupted;
    } catch (const SettingsError &e) {
        complain(e.message);
        return onError;
    }
}

ExitCode Script::load(const QString &path, CameraSource &source)
{
    try {
        const SettingsFile file = readSettings(path, checkProgress);
        for (const QString &remark : file.remarks)
            complain(remark);
        SettingsLoader loader(*source.nodeMap(), file, checkProgress);
        loader.load(checkProgress);
        if (!loader.isComplete())
            return Interrupted;
        ExitCode code = AllFine;
        const QVector<SettingResult> results = loader.results();
        for (const SettingResult &result : results) {
            if (result.state != SettingResult::State::Different)
                continue;
            code = Refused;
            complain(Text::tr("%1: wanted '%2', has '%3': %4")
                         .arg(nameWithContext(result.setting.name, result.context),
                              QString::fromUtf8(result.setting.value), QString::fromUtf8(result.has), result.reason));
        }
        return code;
    } catch (const SettingsInterrupted &) {
        return Interrupted;
    } catch (const SettingsError &e) {
        complain(e.message);
        return NoFile;
    }
}

ExitCode Script::snap(const QString &path, CameraSource &source)
{
    QString failure;
    const std::shared_ptr<const OrvStreams::Frame> frame = takeFrame(source, failure);
    if (!frame && isInterrupted())
        return Interrupted;
    if (!frame)
        return refuse(Text::tr("There is no picture: %1").arg(failure));
    const ConvertedPicture picture =
        convertPicture({frame->pixelFormat, frame->width, frame->height, frame->data, frame->size}, Depth::Full);
    if (picture.image.isNull())
        return refuse(Text::tr("The picture cannot be shown: %1").arg(picture.remark));
    if (!picture.remark.isEmpty())
        complain(picture.remark);
    QByteArray content;
    QBuffer buffer(&content);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.image.save(&buffer, "PNG"))
        return refuse(Text::tr("The picture cannot be written as PNG."));
    try {
        writeWhole(content, path);
        return AllFine;
    } catch (const SettingsError &e) {
        complain(e.message);
        return NoFile;
    }
}
