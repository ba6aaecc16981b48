// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/filteroptions.h>

#include <QCheckBox>
#include <QScreen>
#include <QVBoxLayout>

FilterOptions::FilterOptions(QWidget *parent)
    : QWidget(parent, Qt::Popup)
    , m_case(new QCheckBox(tr("Case Sensitive"), this))
    , m_whole(new QCheckBox(tr("Whole Words Only"), this))
{
    setObjectName(QStringLiteral("FilterOptions"));
    m_case->setObjectName(QStringLiteral("checkBoxCase"));
    m_whole->setObjectName(QStringLiteral("checkBoxWhole"));
    auto *const layout = new QVBoxLayout(this);
    layout->setObjectName(QStringLiteral("verticalLayout"));
    layout->addWidget(m_case);
    layout->addWidget(m_whole);
    connect(m_case, &QCheckBox::toggled, this, &FilterOptions::caseSensitivityChanged);
    connect(m_whole, &QCheckBox::toggled, this, &FilterOptions::wholeWordsChanged);
}

bool FilterOptions::isCaseSensitive() const
{
    return m_case->isChecked();
}

bool FilterOptions::wholeWordsOnly() const
{
    return m_whole->isChecked();
}

QString FilterOptions::iconPath() const
{
    if (isCaseSensitive())
        return wholeWordsOnly() ? QStringLiteral("://images//options-cw.png")
                                : QStringLiteral("://images//options-c.png");
    return wholeWordsOnly() ? QStringLiteral("://images//options-w.png") : QStringLiteral("://images//options.png");
}

void FilterOptions::popUp(const QWidget &anchor)
{
    adjustSize();
    const QPoint bottomRight = anchor.mapToGlobal(QPoint(anchor.width(), anchor.height()));
    QRect place(bottomRight - QPoint(width(), 0), size());
    const QRect available = anchor.screen()->availableGeometry();
    if (place.bottom() > available.bottom())
        place.moveBottom(anchor.mapToGlobal(QPoint(0, 0)).y() - 1);
    place.moveLeft(qBound(available.left(), place.left(), qMax(available.left(), available.right() + 1 - width())));
    move(place.topLeft());
    show();
    m_case->setFocus(Qt::PopupFocusReason);
}
