// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "options.h"

#include "languages.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QHash>

#include <arpa/inet.h>

#include <algorithm>
#include <iterator>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Options)
};

/** No window: only this text. */
Options saying(Options::Action action, const QString &text)
{
    Options options;
    options.action = action;
    options.text = text;
    return options;
}

constexpr const char *stepNames[] = {"get", "set", "save", "load", "snap"}; // in the order of ScriptStep::Kind

/** In the order of the command line. */
QVector<ScriptStep> stepsOf(const QCommandLineParser &parser)
{
    QVector<ScriptStep> steps;
    QHash<QString, int> used; // values of each option
    for (const QString &option : parser.optionNames()) {
        const auto *const name = std::find_if(std::begin(stepNames), std::end(stepNames),
                                              [&option](const char *each) { return option == QLatin1String(each); });
        if (name != std::end(stepNames))
            steps.append({ScriptStep::Kind(name - std::begin(stepNames)), parser.values(option).value(used[option]++)});
    }
    return steps;
}

/** Likewise, of the options that need no window. */
QString misuseOfScripts(const QCommandLineParser &parser)
{
    const QVector<ScriptStep> steps = stepsOf(parser);
    const bool lists = parser.isSet(QStringLiteral("list"));
    for (const ScriptStep &step : steps) {
        if (step.argument.isEmpty())
            return Text::tr("Empty value after '--%1'.").arg(QLatin1String(stepNames[int(step.kind)]));
        if (step.kind == ScriptStep::Kind::Set && step.argument.indexOf(QLatin1Char('=')) < 1)
            return Text::tr("'--set' needs NAME=VALUE, not '%1'.").arg(step.argument);
        if (step.kind == ScriptStep::Kind::Snap && parser.isSet(QStringLiteral("xml")))
            return Text::tr("'--xml' and '--snap' exclude each other.");
    }
    if (lists && (!steps.isEmpty() || parser.isSet(QStringLiteral("xml")) || parser.isSet(QStringLiteral("camera"))))
        return Text::tr("'--list' goes without another camera or command.");
    if ((lists || !steps.isEmpty()) && parser.isSet(QStringLiteral("screenshot")))
        return Text::tr("'--screenshot' goes without other commands.");
    if (parser.isSet(QStringLiteral("real")) && parser.isSet(QStringLiteral("simulated")))
        return Text::tr("'--real' and '--simulated' exclude each other.");
    return {};
}

/** Why options that are right by themselves cannot be used; empty when they can. */
QString misuse(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty())
        return Text::tr("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    for (const char *name : {"xml", "camera", "adapter", "address", "screenshot", "language"}) {
        const QString option = QLatin1String(name);
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return Text::tr("Empty value after '--%1'.").arg(option);
    }
    if (parser.isSet(QStringLiteral("xml")) && parser.isSet(QStringLiteral("camera")))
        return Text::tr("'--xml' and '--camera' exclude each other.");
    const bool restricts = parser.isSet(QStringLiteral("adapter")) || parser.isSet(QStringLiteral("address"));
    if (restricts && !parser.isSet(QStringLiteral("real")))
        return Text::tr("'--adapter' and '--address' need '--real'.");
    for (const QString &address : parser.values(QStringLiteral("address"))) {
        in_addr parsed{};
        if (::inet_pton(AF_INET, qPrintable(address), &parsed) != 1)
            return Text::tr("'%1' is no IPv4 address.").arg(address);
    }
    if (parser.isSet(QStringLiteral("real")) && !OrvTransports::canReachRealCameras())
        return Text::tr("Real cameras need the module libOrvCameraApiAravis.so, which is not installed.");
    const QString language = parser.value(QStringLiteral("language"));
    if (!language.isEmpty() && !languages().contains(language))
        return Text::tr("There is no language '%1'; there are: %2.")
            .arg(language, languages().join(QLatin1String(", ")));
    return misuseOfScripts(parser);
}

} // namespace

Options parseOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(Text::tr("Shows the features of a GenICam camera."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, Text::tr("Print this text."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, Text::tr("Print the version."));
    const QCommandLineOption xml(QStringLiteral("xml"),
                                 Text::tr("Show the GenICam description FILE over an empty memory."), Text::tr("FILE"));
    const QCommandLineOption camera(QStringLiteral("camera"),
                                    Text::tr("Open the camera with the identifier ID instead of asking for one."),
                                    Text::tr("ID"));
    const QCommandLineOption real(QStringLiteral("real"),
                                  Text::tr("Show the cameras on the network and on USB instead of simulated ones."));
    const QCommandLineOption simulated(QStringLiteral("simulated"), Text::tr("Show simulated cameras."));
    const QCommandLineOption list(QStringLiteral("list"),
                                  Text::tr("Print the cameras that are found, without a window."));
    const QCommandLineOption get(QStringLiteral("get"),
                                 Text::tr("Print the value of the feature NAME, without a window."), Text::tr("NAME"));
    const QCommandLineOption set(QStringLiteral("set"),
                                 Text::tr("Write VALUE to the feature NAME; execute it if it is a command."),
                                 Text::tr("NAME=VALUE"));
    const QCommandLineOption save(QStringLiteral("save"),
                                  Text::tr("Write the settings of the camera into FILE, '-' for the standard output."),
                                  Text::tr("FILE"));
    const QCommandLineOption load(
        QStringLiteral("load"), Text::tr("Set the camera as FILE says, '-' for the standard input."), Text::tr("FILE"));
    const QCommandLineOption snap(QStringLiteral("snap"),
                                  Text::tr("Write a picture of the camera into the PNG file FILE."), Text::tr("FILE"));
    const QCommandLineOption adapter(QStringLiteral("adapter"),
                                     Text::tr("Look for cameras on the network adapter NAME only."), Text::tr("NAME"));
    const QCommandLineOption address(QStringLiteral("address"),
                                     Text::tr("Ask the camera at the address IP only, without a broadcast."),
                                     Text::tr("IP"));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        Text::tr("Draw the windows into PNG files in the directory DIR and end; needs no display."), Text::tr("DIR"));
    const QCommandLineOption language(
        QStringLiteral("language"),
        Text::tr("Show the windows in the language LANGUAGE (%1) instead of the system's.")
            .arg(languages().join(QLatin1String(", "))),
        Text::tr("LANGUAGE"));
    parser.addOptions({help, version, xml, camera, real, simulated, adapter, address, list, get, set, save, load, snap,
                       screenshot, language});

    const bool understood = parser.parse(arguments);
    if (understood && parser.isSet(help))
        return saying(Options::Action::PrintText, parser.helpText());
    if (understood && parser.isSet(version))
        return saying(Options::Action::PrintText,
                      QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion()
                          + QLatin1Char('\n'));
    const QString why = understood ? misuse(parser) : parser.errorText();
    if (!why.isEmpty())
        return saying(Options::Action::Fail, why);

    Options options;
    if (parser.isSet(screenshot))
        options.action = Options::Action::SaveScreenshot;
    options.steps = stepsOf(parser);
    if (!options.steps.isEmpty())
        options.action = Options::Action::RunScript;
    if (parser.isSet(list))
        options.action = Options::Action::ListCameras;
    if (parser.isSet(simulated))
        options.cameras = OrvTransports::Cameras::Simulated;
    options.xmlFile = parser.value(xml);
    options.cameraId = parser.value(camera);
    if (parser.isSet(real))
        options.cameras = OrvTransports::Cameras::Real;
    for (const QString &name : parser.values(adapter))
        options.discovery.adapters.push_back(name.toStdString());
    for (const QString &ip : parser.values(address))
        options.discovery.addresses.push_back(ip.toStdString());
    options.screenshotDir = parser.value(screenshot);
    options.language = parser.value(language);
    return options;
}
