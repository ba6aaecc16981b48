// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "settingsmenu.h"

#include "settingsjob.h"
#include "settingsreport.h"
#include "settingssaver.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTimer>

#include <utility>

namespace {

const QLatin1String folderKey("settings/folder");

QString textOf(const QByteArray &value)
{
    return QString::fromUtf8(value);
}

/** With nothing in the other columns. */
QStringList remarkCells(const QString &remark, int columns)
{
    QStringList cells;
    for (int i = 1; i < columns; ++i)
        cells.append(QString());
    return cells << remark;
}

QVector<ReportRow> rowsOf(const QStringList &remarks, int columns)
{
    QVector<ReportRow> rows;
    for (const QString &remark : remarks)
        rows.append({QString(), remarkCells(remark, columns)});
    return rows;
}

constexpr int mostRows = 10000; // a file may have a hundred times as many lines

} // namespace

/** What a job works on; both threads know it, one after the other. */
struct SettingsMenu::Task
{
    QString path;
    SettingsFile file;
    std::unique_ptr<SettingsLoader> loader;
    QVector<SettingResult> results;
    QVector<SettingDifference> differences;
    int camera = 0; ///< its number
    QString failure; ///< empty: none
    bool isDone = false; ///< to its end
};

SettingsMenu::SettingsMenu(QWidget *parent)
    : QMenu(tr("S&ettings"), parent)
    , m_save(
          addAction(tr("&Save Settings..."), this,
                    [this] { askForFile(tr("Save Settings"), true, [this](const QString &path) { saveTo(path); }); }))
    , m_load(addAction(
          tr("&Load Settings..."), this,
          [this] { askForFile(tr("Load Settings"), false, [this](const QString &path) { loadFrom(path); }); }))
    , m_compare(addAction(tr("&Compare With File..."), this, [this] {
        askForFile(tr("Compare With File"), false, [this](const QString &path) { compareWith(path); });
    }))
{
    setToolTipsVisible(true);
    m_save->setObjectName(QStringLiteral("saveSettings"));
    m_save->setStatusTip(tr("Write the settings of the camera into a file"));
    m_load->setObjectName(QStringLiteral("loadSettings"));
    m_load->setStatusTip(tr("Set the camera as a file says"));
    m_compare->setObjectName(QStringLiteral("compareSettings"));
    m_compare->setStatusTip(tr("Show what differs between the camera and a file"));
    insertSeparator(m_compare);
    QAction *const files = addAction(tr("Compare &Two Files..."), this, [this] {
        askForFile(tr("First File"), false, [this](const QString &path) { askForSecondFile(path); });
    });
    files->setObjectName(QStringLiteral("compareFiles"));
    files->setStatusTip(tr("Show what differs between two files"));
    update();
}

SettingsMenu::~SettingsMenu() = default;

void SettingsMenu::setCamera(GenApi::INodeMap *nodeMap)
{
    if (m_job) {
        m_job->join();
        m_nodeMap = nullptr; // whoever tells of it starts nothing
        finish();
    }
    m_nodeMap = nodeMap;
    ++m_camera;
    m_marking = nullptr;
    const auto reports = parentWidget()->findChildren<SettingsReport *>();
    for (SettingsReport *report : reports)
        report->withdrawPutBack();
    Q_EMIT featuresMarked({});
    update();
}

void SettingsMenu::setReachable(bool reachable)
{
    m_isReachable = reachable;
    if (!reachable && m_job)
        m_job->interrupt();
    const auto reports = parentWidget()->findChildren<SettingsReport *>();
    for (SettingsReport *report : reports)
        report->setReachable(reachable);
    update();
}

void SettingsMenu::update()
{
    for (QAction *action : {m_save, m_load, m_compare})
        action->setEnabled(m_nodeMap && m_isReachable);
}

void SettingsMenu::askForFile(const QString &title, bool isNew, const std::function<void(const QString &)> &use)
{
    auto *const dialog = new QFileDialog(parentWidget(), title, m_folder, tr("Settings (*.gps *.txt);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(isNew ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(isNew ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (isNew)
        dialog->setDefaultSuffix(QStringLiteral("gps"));
    connect(dialog, &QFileDialog::fileSelected, this, [this, use](const QString &path) {
        m_folder = QFileInfo(path).absolutePath();
        use(path);
    });
    dialog->open();
}

void SettingsMenu::askForSecondFile(const QString &first)
{
    askForFile(tr("Second File"), false, [this, first](const QString &second) { compareFiles(first, second); });
}

/** One job at a time: its window is modal. \a whenDone is called however it ended. */
void SettingsMenu::start(const QString &title, const Work &work, const std::function<void()> &whenDone)
{
    if (m_job)
        return;
    m_whenDone = whenDone;
    m_job = std::make_unique<SettingsJob>(title, work, parentWidget());
    connect(m_job.get(), &SettingsJob::ended, this, &SettingsMenu::finish);
    m_job->show();
    Q_EMIT busyChanged(true);
}

void SettingsMenu::finish()
{
    SettingsJob *const job = m_job.release();
    job->join();
    job->disconnect(this); // it may be about to tell its end
    job->hide();
    job->deleteLater(); // this may be a slot of it
    Q_EMIT busyChanged(false);
    const std::function<void()> whenDone = std::exchange(m_whenDone, {});
    if (job->failure().isEmpty())
        whenDone();
    else
        warn(tr("%1 has failed: %2").arg(job->windowTitle(), job->failure()));
}

/** Acts at once, or when the camera has stopped sending pictures, if a person agrees to that. */
void SettingsMenu::whenUnlocked(const QString &title, const std::function<void()> &go)
{
    if (!isLocked())
        return go();
    auto *const box = new QMessageBox(QMessageBox::Question, title,
                                      tr("The camera sends pictures, which locks some of its settings."),
                                      QMessageBox::Cancel, parentWidget());
    box->setAttribute(Qt::WA_DeleteOnClose);
    const QPushButton *const stopping = box->addButton(tr("&Stop the Pictures"), QMessageBox::AcceptRole);
    const auto goOn = [this, go, camera = m_camera] {
        if (camera == m_camera) // no other one was asked about
            go();
    };
    connect(box, &QMessageBox::buttonClicked, this, [this, title, goOn, stopping](const QAbstractButton *button) {
        if (button != stopping)
            return;
        constexpr int mostAttempts = 100;
        Q_EMIT stopWanted();
        waitUntilUnlocked(title, goOn, mostAttempts);
    });
    box->open();
}

void SettingsMenu::waitUntilUnlocked(const QString &title, const std::function<void()> &go, int attempts)
{
    constexpr int period = 50; // milliseconds
    if (!isLocked())
        go();
    else if (attempts == 0)
        warn(tr("%1: the camera does not stop sending pictures.").arg(title));
    else
        QTimer::singleShot(period, this, [=, camera = m_camera] {
            if (camera == m_camera) // and not another one, of which nobody has spoken
                waitUntilUnlocked(title, go, attempts - 1);
        });
}

bool SettingsMenu::isLocked() const
{
    bool is = false; // its text depends on how a person wants to see it
    failureOf([&] {
        GenApi::INode *const lock = m_nodeMap ? m_nodeMap->GetNode("TLParamsLocked") : nullptr;
        if (auto *const number = dynamic_cast<GenApi::IInteger *>(lock))
            is = number->GetValue(false, true) != 0; // it may change by itself
        else if (auto *const truth = dynamic_cast<GenApi::IBoolean *>(lock))
            is = truth->GetValue(false, true);
    });
    return is;
}

void SettingsMenu::saveTo(const QString &path)
{
    whenUnlocked(tr("Save Settings"), [this, path] { save(path); });
}

void SettingsMenu::save(const QString &path)
{
    if (!m_nodeMap || !isFile(path))
        return;
    const auto task = std::make_shared<Task>();
    task->path = path;
    const auto work = [task, map = m_nodeMap](const SettingsProgress &progress) {
        SettingsSaver saver(*map, progress);
        try {
            task->file = saver.save();
            progress(0, 0, {}); // the camera may have gone meanwhile
            writeSettings(task->file, task->path);
            task->isDone = true;
        } catch (const SettingsError &e) {
            task->failure = e.message;
        } catch (const SettingsInterrupted &) {
            task->failure = tr("Saving was interrupted.");
        }
        task->file.remarks = saver.remarks();
    };
    start(tr("Save Settings"), work, [this, task] { reportSaved(*task); });
}

void SettingsMenu::reportSaved(const Task &task)
{
    const QString summary = task.isDone ? tr("Lines saved in '%1': %2").arg(task.path).arg(task.file.settings.size())
                                        : tr("%1 Nothing was written to '%2'.").arg(task.failure, task.path);
    if (!task.isDone && task.file.remarks.isEmpty())
        return warn(summary);
    Q_EMIT told(summary);
    if (!task.file.remarks.isEmpty())
        report(tr("Save Settings"), summary, {tr("What is missing, and why")}, rowsOf(task.file.remarks, 1));
}

void SettingsMenu::loadFrom(const QString &path)
{
    if (!m_nodeMap || !isFile(path))
        return;
    const auto task = std::make_shared<Task>();
    task->path = path;
    task->camera = m_camera;
    const auto work = [task](const SettingsProgress &progress) {
        task->failure = tr("Loading was interrupted: nothing has been set.");
        try {
            task->file = readSettings(task->path, progress);
            task->isDone = true;
        } catch (const SettingsError &e) {
            task->failure = e.message;
        }
    };
    start(tr("Load Settings"), work, [this, task] {
        if (!task->isDone)
            warn(task->failure);
        else if (m_nodeMap)
            askAboutDevice(task);
    });
}

/** Vendor and model, without the version. */
void SettingsMenu::askAboutDevice(const std::shared_ptr<Task> &task)
{
    const auto modelOf = [](const QString &device) { return device.section(QLatin1String(" -- "), 0, 0); };
    const QString present = FeatureMap(*m_nodeMap).device();
    if (task->file.device.isEmpty() || modelOf(task->file.device) == modelOf(present))
        return load(task);
    auto *const box = new QMessageBox(QMessageBox::Question, tr("Load Settings"),
                                      tr("The settings are those of another camera: %1.\nThis one is: %2.")
                                          .arg(modelOf(task->file.device), modelOf(present)),
                                      QMessageBox::Cancel, parentWidget());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText); // the file and the camera have a part in it
    const QAbstractButton *const loading = box->addButton(tr("&Load"), QMessageBox::AcceptRole);
    connect(box, &QMessageBox::buttonClicked, this, [this, task, loading](const QAbstractButton *button) {
        if (button == loading && task->camera == m_camera)
            load(task);
    });
    box->open();
}

void SettingsMenu::load(const std::shared_ptr<Task> &task)
{
    const auto go = [this, task] { write(task); };
    whenUnlocked(tr("Load Settings"), go);
}

void SettingsMenu::write(const std::shared_ptr<Task> &task)
{
    if (!m_nodeMap)
        return;
    const auto work = [task, map = m_nodeMap](const SettingsProgress &progress) {
        task->loader = std::make_unique<SettingsLoader>(*map, task->file, progress);
        task->loader->load(progress);
        task->results = task->loader->results();
    };
    start(tr("Load Settings"), work, [this, task] { reportLoaded(task, false); });
}

void SettingsMenu::putBack(const std::shared_ptr<Task> &task)
{
    const auto work = [task](const SettingsProgress &progress) {
        task->loader->putBack(progress);
        task->results = task->loader->results();
    };
    task->file.remarks.clear();
    start(tr("Put Back"), work, [this, task] { reportLoaded(task, true); });
}

void SettingsMenu::reportLoaded(const std::shared_ptr<Task> &task, bool isPutBack)
{
    if (!task->loader)
        return warn(task->failure); // before it was there
    const QStringList columns{tr("Feature"), tr("Wanted"), tr("Camera"), tr("Reason")};
    QVector<ReportRow> rows = rowsOf(task->file.remarks, int(columns.size()));
    int others = 0;
    const bool isComplete = task->loader->isComplete();
    int set = 0;
    int failed = 0;
    for (const SettingResult &result : std::as_const(task->results)) {
        const bool isSet = result.state == SettingResult::State::Set;
        const bool hasFailed = result.state == SettingResult::State::Different;
        set += isSet ? 1 : 0;
        failed += hasFailed ? 1 : 0;
        if (!hasFailed && (!isSet || (isComplete && result.reason.isEmpty())))
            continue;
        if (rows.size() >= mostRows && ++others > 0)
            continue;
        rows.append({textOf(result.setting.name),
                     {nameWithContext(result.setting.name, result.context), textOf(result.setting.value),
                      textOf(result.has), result.reason.isEmpty() ? tr("It has been set.") : result.reason}});
    }
    const QString text = isPutBack
        ? tr("%1 of %2 settings have been put back, %3 could not be put back; the others were so already.")
        : tr("%1 of %2 settings have been set, %3 could not be set; the others were so already.");
    const QString summary = text.arg(set).arg(task->results.size()).arg(failed);
    Q_EMIT told(summary);
    if (rows.isEmpty() && isComplete)
        return;
    const QString whole = isComplete ? summary : tr("It was interrupted.") + QLatin1Char(' ') + summary;
    SettingsReport *const window =
        report(isPutBack ? tr("Put Back") : tr("Load Settings"), whole, columns, rows, others);
    const bool isBack = isPutBack && isComplete;
    if (isBack || !m_nodeMap || !task->loader->hasWritten())
        return;
    window->offerPutBack();
    window->setReachable(m_isReachable);
    connect(window, &SettingsReport::putBackWanted, this, [this, task] { putBack(task); });
}

void SettingsMenu::compareWith(const QString &path)
{
    if (!m_nodeMap || !isFile(path))
        return;
    const auto task = std::make_shared<Task>();
    task->path = path;
    const auto work = [task, map = m_nodeMap](const SettingsProgress &progress) {
        try {
            task->file = readSettings(task->path, progress);
            task->differences = compareWithCamera(task->file, *map, task->file.remarks, progress);
            task->isDone = true;
        } catch (const SettingsError &e) {
            task->failure = e.message;
        }
    };
    start(tr("Compare"), work, [this, task] {
        SettingsReport *const window = reportCompared(*task, task->path, tr("Camera"));
        if (!window || !m_nodeMap)
            return;
        m_marking = window;
        connect(window, &QDialog::finished, this, [this, window] {
            if (m_marking == window) // and no newer one
                Q_EMIT featuresMarked({});
        });
        QStringList names;
        for (const SettingDifference &difference : std::as_const(task->differences))
            names.append(textOf(difference.name));
        Q_EMIT featuresMarked(names);
    });
}

void SettingsMenu::compareFiles(const QString &left, const QString &right)
{
    if (!isFile(left) || !isFile(right))
        return;
    const auto task = std::make_shared<Task>();
    const auto work = [task, left, right, map = m_nodeMap](const SettingsProgress &progress) {
        const std::unique_ptr<FeatureMap> camera = map ? std::make_unique<FeatureMap>(*map) : nullptr;
        try {
            task->file = readSettings(left, progress);
            const SettingsFile other = readSettings(right, progress);
            task->differences = compareSettings(task->file, other, camera.get());
            task->file.remarks += other.remarks;
            task->isDone = true;
        } catch (const SettingsError &e) {
            task->failure = e.message;
        }
    };
    start(tr("Compare"), work, [this, task, left, right] { reportCompared(*task, left, right); });
}

SettingsReport *SettingsMenu::reportCompared(const Task &task, const QString &left, const QString &right)
{
    if (!task.isDone) {
        QStringList lines{task.failure.isEmpty() ? tr("Comparing was interrupted.") : task.failure};
        constexpr int mostRemarks = 10; // in a message
        warn((lines + task.file.remarks.mid(0, mostRemarks)).join(QLatin1Char('\n')));
        return nullptr;
    }
    const QStringList columns{tr("Feature"), QFileInfo(left).fileName(), QFileInfo(right).fileName(), tr("Reason")};
    QVector<ReportRow> rows = rowsOf(task.file.remarks, int(columns.size()));
    for (const SettingDifference &difference : task.differences) {
        QString reason = difference.reason;
        if (reason.isEmpty() && !(difference.isLeft && difference.isRight))
            reason = tr("Only in '%1'.").arg(difference.isLeft ? left : right);
        if (rows.size() >= mostRows)
            break;
        rows.append({textOf(difference.name),
                     {nameWithContext(difference.name, difference.context), textOf(difference.left),
                      textOf(difference.right), reason}});
    }
    const int others = int(task.file.remarks.size() + task.differences.size() - rows.size());
    return report(tr("Compare"),
                  tr("Differences between '%1' and '%2': %3").arg(left, right).arg(task.differences.size()), columns,
                  rows, others);
}

SettingsReport *SettingsMenu::report(const QString &title, const QString &summary, const QStringList &columns,
                                     QVector<ReportRow> rows, int others)
{
    if (others > 0)
        rows.append({QString(), remarkCells(tr("And %1 more.").arg(others), int(columns.size()))});
    auto *const window = new SettingsReport(title, summary, columns, rows, parentWidget());
    connect(window, &SettingsReport::featureChosen, this, &SettingsMenu::featureChosen);
    window->show();
    return window;
}

/** Opening others may last for ever, and nobody could interrupt that. */
bool SettingsMenu::isFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        warn(tr("'%1' is no file.").arg(path));
    return !info.exists() || info.isFile();
}

void SettingsMenu::warn(const QString &message)
{
    auto *const box = new QMessageBox(QMessageBox::Warning, tr("Settings"), message, QMessageBox::Ok, parentWidget());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText); // a camera or a file may have a part in it
    box->open();
}

void SettingsMenu::saveSettings(QSettings &settings) const
{
    settings.setValue(folderKey, m_folder);
}

void SettingsMenu::restoreSettings(const QSettings &settings)
{
    m_folder = settings.value(folderKey).toString();
}
