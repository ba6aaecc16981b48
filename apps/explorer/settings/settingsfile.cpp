// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "settingsfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>

#include <poll.h>
#include <unistd.h>

namespace {

constexpr int mostRemarks = 1000;

const char *const mark = "{05D8C294-F295-4dfb-9D01-096BD04049F4}";
const char *const deviceMark = "# Device = ";

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SettingsFile)
};

class Parser
{
public:
    explicit Parser(const SettingsProgress &progress)
        : m_progress(progress)
    {
    }

    SettingsFile parse(QByteArray content)
    {
        constexpr int turn = 1000; // lines
        if (content.startsWith("\xEF\xBB\xBF"))
            content.remove(0, 3);
        for (int begin = 0; begin < content.size();) {
            int end = int(content.indexOf('\n', begin));
            if (end < 0)
                end = int(content.size());
            if (++m_line % turn == 0 && m_progress)
                m_progress(begin, int(content.size()), {});
            takeLine(content, begin, end > begin && content.at(end - 1) == '\r' ? end - 1 : end);
            begin = end + 1;
        }
        if (m_file.settings.isEmpty() && !m_hasMark)
            throw SettingsError{Text::tr("There are no settings in it.")};
        if (!m_hasMark)
            m_file.remarks.prepend(Text::tr("The head of a settings file is missing."));
        return m_file;
    }

private:
    void takeLine(const QByteArray &content, int begin, int end)
    {
        if (end - begin > longestLine)
            return pass(Text::tr("The line is too long."));
        const QByteArray line = content.mid(begin, end - begin);
        if (line.contains('\0'))
            return pass(Text::tr("The line has a NUL byte."));
        if (line.startsWith('#'))
            return takeComment(line);
        if (line.trimmed().isEmpty())
            return;
        const int tab = int(line.indexOf('\t'));
        if (tab < 1)
            return pass(Text::tr("The line is no setting: '%1'.").arg(QString::fromUtf8(line.left(60))));
        if (m_file.settings.size() == mostSettings)
            throw SettingsError{Text::tr("It has too many lines.")};
        m_file.settings.append({line.left(tab), line.mid(tab + 1), m_line});
    }

    void takeComment(const QByteArray &line)
    {
        m_hasMark = m_hasMark || line.toUpper().contains(QByteArray(mark).toUpper());
        if (m_file.device.isEmpty() && line.startsWith(deviceMark))
            m_file.device = QString::fromUtf8(line.mid(int(qstrlen(deviceMark)))).trimmed();
    }

    void pass(const QString &why) { addRemark(m_file.remarks, Text::tr("Line %1: %2").arg(m_line).arg(why)); }

    const SettingsProgress &m_progress;
    SettingsFile m_file;
    int m_line = 0;
    bool m_hasMark = false;
};

[[noreturn]] void fail(const QString &text, const QString &path, const QString &why)
{
    throw SettingsError{text.arg(path, why).simplified()};
}

bool isStandard(const QString &path)
{
    return path == QLatin1String("-");
}

/** To its end; a part would be a setting that nobody wrote. Whoever it comes from may let it wait for ever. */
QByteArray readStandardInput(const QString &text, const SettingsProgress &progress)
{
    constexpr int patience = 100; // milliseconds, between looks whether somebody interrupts
    QByteArray content;
    char part[1 << 16];
    while (content.size() <= longestFile) {
        if (progress)
            progress(0, 0, {});
        pollfd input{STDIN_FILENO, POLLIN, 0};
        if (::poll(&input, 1, patience) <= 0)
            continue;
        const ssize_t count = ::read(STDIN_FILENO, part, sizeof(part));
        if (count == 0)
            break;
        if (count > 0)
            content.append(part, int(count));
        else if (errno != EINTR && errno != EAGAIN)
            fail(text, QStringLiteral("-"), qt_error_string());
    }
    return content;
}

/** Devices and pipes, which a new file must not replace, also where they lead to a file. */
bool isSpecial(const QString &path)
{
    const QFileInfo info(path);
    const QString whole = info.absoluteFilePath();
    return (info.exists() && !info.isFile()) || whole.startsWith(QLatin1String("/dev/"))
        || whole.startsWith(QLatin1String("/proc/"));
}

} // namespace

SettingsFile parseSettings(const QByteArray &content, const SettingsProgress &progress)
{
    return Parser(progress).parse(content);
}

SettingsFile readSettings(const QString &path, const SettingsProgress &progress)
{
    const QString text = Text::tr("Cannot read '%1': %2");
    QFile file(path);
    QByteArray content;
    if (isStandard(path))
        content = readStandardInput(text, progress);
    else if (file.open(QIODevice::ReadOnly))
        content = file.read(longestFile + 1);
    if (file.error() != QFileDevice::NoError)
        fail(text, path, file.errorString());
    if (content.size() > longestFile)
        fail(text, path, Text::tr("The file is too large."));
    try {
        return parseSettings(content, progress);
    } catch (const SettingsError &e) {
        fail(text, path, e.message);
    }
}

QVector<Setting> takeSelectors(Setting &setting, const std::function<bool(const QByteArray &name)> &isSelector)
{
    const int end = setting.value.startsWith('{') ? int(setting.value.indexOf("}\t")) : -1;
    if (end < 0)
        return {};
    QVector<Setting> selectors;
    const QList<QByteArray> parts = setting.value.mid(1, end - 1).split('\t');
    for (const QByteArray &part : parts) {
        const int middle = int(part.indexOf('='));
        if (middle < 1 || !isSelector(part.left(middle)))
            return {};
        selectors.append({part.left(middle), part.mid(middle + 1), setting.line});
    }
    setting.value.remove(0, end + 2);
    return selectors;
}

QByteArray textOf(const SettingsFile &file)
{
    QByteArray text = QByteArray("# ") + mark + "\n# GenApi persistence file (version 3.1.0)\n" + deviceMark
        + file.device.simplified().toUtf8() + '\n';
    for (const Setting &setting : file.settings)
        text += setting.name + '\t' + setting.value + '\n';
    return text;
}

void writeSettings(const SettingsFile &file, const QString &path)
{
    writeWhole(textOf(file), path);
}

void writeWhole(const QByteArray &content, const QString &path)
{
    const QString text = Text::tr("Cannot write '%1': %2");
    if (!isStandard(path) && !isSpecial(path)) {
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
            fail(text, path, file.errorString());
        return;
    }
    QFile file(path); // a device or a pipe, which a new file must not replace
    const bool isOpen = isStandard(path) ? file.open(stdout, QIODevice::WriteOnly) : file.open(QIODevice::WriteOnly);
    if (!isOpen || file.write(content) != content.size() || !file.flush())
        fail(text, path, file.errorString());
}

void addRemark(QStringList &remarks, const QString &remark)
{
    if (remarks.size() < mostRemarks)
        remarks.append(remark);
    else if (remarks.size() == mostRemarks)
        remarks.append(Text::tr("There is more of that kind."));
}

QString nameWithContext(const QByteArray &name, const QVector<Setting> &context)
{
    QStringList entries;
    for (const Setting &setting : context)
        entries.append(QString::fromUtf8(setting.name + '=' + setting.value));
    const QString plain = QString::fromUtf8(name);
    return entries.isEmpty() ? plain : QStringLiteral("%1 (%2)").arg(plain, entries.join(QLatin1String(", ")));
}
