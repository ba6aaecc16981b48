// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/findbar.h>

#include <OrvCameraGuiApi/feature_tree/featuresearch.h>
#include <OrvCameraGuiApi/feature_tree/featuretree.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <QApplication>
#include <QBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>

#include <utility>

FindBar::FindBar(FeatureTree *tree, QWidget *parent)
    : QWidget(parent)
    , m_tree(tree)
    , m_search(new FeatureSearch(this))
    , m_text(new QLineEdit(this))
    , m_count(new QLabel(this))
{
    setObjectName(QStringLiteral("findBar"));
    hide();
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_text->setPlaceholderText(tr("Find"));
    m_text->setAccessibleName(tr("Find Features"));
    m_text->setToolTip(tr("Find Features"));
    layout->addWidget(m_text);
    m_count->setMinimumWidth(m_count->fontMetrics().horizontalAdvance(tr("%1 of %2").arg(9999).arg(99999)));
    layout->addWidget(m_count);
    addButton(Qt::UpArrow, tr("Previous match"), tr("Previous match (Shift+F3)"), false);
    addButton(Qt::DownArrow, tr("Next match"), tr("Next match (F3)"), true);
    addCloseButton();
    connect(m_text, &QLineEdit::textChanged, this, &FindBar::textEdited);
    connect(m_search, &FeatureSearch::matchesChanged, this, &FindBar::goOn);
    connect(tree, &FeatureTree::modelReplaced, this, &FindBar::followModel);
}

void FindBar::addButton(Qt::ArrowType arrow, const QString &name, const QString &tip, bool forward)
{
    auto *const button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(name);
    button->setToolTip(tip);
    connect(button, &QToolButton::clicked, this, [this, forward] { step(forward); });
    layout()->addWidget(button);
}

void FindBar::addCloseButton()
{
    auto *const button = new QToolButton(this);
    button->setText(QString(QChar(0x00D7)));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(tr("Close search"));
    button->setToolTip(tr("Close (Esc)"));
    connect(button, &QToolButton::clicked, this, &FindBar::leave);
    layout()->addWidget(button);
}

void FindBar::open()
{
    show();
    m_start = m_tree->currentIndex();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
}

void FindBar::leave()
{
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    hide();
    if (hadFocus)
        m_tree->setFocus(Qt::OtherFocusReason);
}

void FindBar::step(bool forward)
{
    if (m_text->text().isEmpty()) {
        open();
        return;
    }
    show();
    m_wanted = forward ? Wanted::Next : Wanted::Previous;
    goOn();
}

/** Searches only while it is shown: otherwise each row that comes or goes would cost a search. */
void FindBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    followModel();
    m_search->search(m_text->text());
}

void FindBar::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_wanted = Wanted::Nothing;
    m_search->search(QString());
    m_search->setModel(nullptr);
}

void FindBar::followModel()
{
    m_search->setModel(isVisible() ? m_tree->model() : nullptr);
    if (QItemSelectionModel *const selection = m_tree->selectionModel())
        connect(selection, &QItemSelectionModel::currentChanged, this, &FindBar::showCount, Qt::UniqueConnection);
}

void FindBar::textEdited(const QString &text)
{
    m_wanted = text.isEmpty() ? Wanted::Nothing : Wanted::FromStart;
    m_search->search(text);
}

/** Invalid while it has not been found. */
QModelIndex FindBar::wantedMatch() const
{
    const auto &matches = m_search->matches();
    const bool isComplete = m_search->isComplete();
    if (matches.empty() || m_wanted == Wanted::Nothing)
        return {};
    const QModelIndex row = m_wanted == Wanted::FromStart ? QModelIndex(m_start) : m_tree->currentIndex();
    const QModelIndex name = row.siblingAtColumn(0);
    size_t at = name.isValid() ? m_search->firstFrom(name) : 0;
    if (m_wanted == Wanted::Previous) {
        if (!isComplete && (at == 0 || at == matches.size()))
            return {};
        return at > 0 ? matches[at - 1] : matches.back();
    }
    if (m_wanted == Wanted::Next && at < matches.size() && matches[at] == name)
        ++at;
    if (at < matches.size())
        return matches[at];
    return isComplete ? matches.front() : QModelIndex();
}

void FindBar::goOn()
{
    const OpenCalls::Call call;
    const QPointer<FindBar> alive(this);
    const QModelIndex match = wantedMatch();
    if (match.isValid()) {
        const bool isStep = std::exchange(m_wanted, Wanted::Nothing) != Wanted::FromStart;
        m_tree->jumpTo(match);
        if (!alive)
            return;
        if (isStep)
            m_start = m_tree->currentIndex();
    }
    showCount();
}

void FindBar::showCount()
{
    const auto &matches = m_search->matches();
    const QModelIndex current = m_tree->currentIndex().siblingAtColumn(0);
    const size_t at = current.isValid() ? m_search->firstFrom(current) : matches.size();
    const QLocale locale;
    const QString count = locale.toString(qulonglong{matches.size()});
    QString text;
    if (at < matches.size() && matches[at] == current)
        text = tr("%1 of %2").arg(locale.toString(qulonglong{at} + 1), count);
    else if (!matches.empty())
        text = tr("%1 found").arg(count);
    else if (m_search->isComplete() && !m_text->text().isEmpty())
        text = tr("not found");
    m_count->setText(m_search->isComplete() ? text : text + QChar(0x2026));
}

void FindBar::standBefore(QWidget &next)
{
    QWidget *former = next.previousInFocusChain();
    while (former != &next && !(former->focusPolicy() & Qt::TabFocus))
        former = former->previousInFocusChain();
    const auto children = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *const child : children) {
        if (child->focusPolicy() & Qt::TabFocus) {
            QWidget::setTabOrder(former, child);
            former = child;
        }
    }
}

/** Of the field and the buttons, which leave these keys alone. */
void FindBar::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        leave();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        step(!(event->modifiers() & Qt::ShiftModifier));
    else
        QWidget::keyPressEvent(event);
}
