#include "script.h"

#include "camerasource.h"
#include "picture/pixelformat.h"
#include "settings/settingsloader.h"
#include "settings/settingssaver.h"

#include <GenApi/GenApi.h>
#include <OrvCameraApi/streaming.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <csignal>
#include <cstdio>

namespace {

constexpr int longestCommand = 10000; // milliseconds
constexpr int longestPicture = 10000; // milliseconds
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

void complain(const QString &message)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()), message.toUtf8().constData());
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

/** One picture, once the stream has stopped again; null, and \a failure tells why. */
std::shared_ptr<const OrvStreams::Frame> takeFrame(CameraSource &source, QString &failure)
{
    std::string why;
    const std::unique_ptr<OrvStreams::Stream> stream =
        source.device() ? OrvStreams::Stream::create(*source.device(), &why) : nullptr;
    failure = QString::fromStdString(why);
    if (!stream)
        return nullptr;
    const auto hasStopped = [&stream] { return stream->state() == OrvStreams::State::Stopped; };
    stream->start(1);
    const bool isDone = waitFor(longestPicture, hasStopped);
    stream->stop();
    waitFor(longestPicture, hasStopped);
    failure = QString::fromStdString(stream->failure());
    if (failure.isEmpty() && !isDone)
        failure = Text::tr("None has come within %1 s.").arg(longestPicture / 1000);
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
            const QString state = camera.canBeOpened ? QStringLiteral("free") : QStringLiteral("out of reach");
            const QStringList cells{camera.id, camera.name, state};
            if (print(cells.join(QLatin1Char('\t')).toUtf8()) != AllFine)
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
        const ExitCode code = isInterrupted() ? Interrupted : perform(step, *source);
        if (code != AllFine)
            return isInterrupted() ? Interrupted : code;
    }
    return AllFine;
}

std::unique_ptr<CameraSource> Script::open(const Options &options)
{
    try {
        return options.xmlFile.isEmpty() ? openCamera(options.cameraId, isInterrupted)
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
    return print(value.text);
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
    return failure.isEmpty() ? AllFine : refuse(Text::tr("Cannot set '%1': %2").arg(name, failure));
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
    return isDone ? AllFine : refuse(Text::tr("'%1' does not end.").arg(name));
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
        const SettingsFile file = readSettings(path);
        for (const QString &remark : file.remarks)
            complain(remark);
        SettingsLoader loader(*source.nodeMap(), file);
        loader.load(checkProgress);
        ExitCode code = loader.isComplete() ? AllFine : Interrupted;
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
    } catch (const SettingsError &e) {
        complain(e.message);
        return NoFile;
    }
}

ExitCode Script::snap(const QString &path, CameraSource &source)
{
    QString failure;
    const std::shared_ptr<const OrvStreams::Frame> frame = takeFrame(source, failure);
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
