// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/windows/fitscreen.h>

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

namespace {

/** Around a window; before there is one, what the style takes for usual. */
QMargins frameOf(const QWidget &window)
{
    const QMargins known = window.windowHandle() ? window.windowHandle()->frameMargins() : QMargins();
    if (!known.isNull() || (window.windowFlags() & Qt::FramelessWindowHint))
        return known;
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    const int side = window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window);
    return {side, title, side, side};
}

class WithinScreen : public QObject
{
public:
    explicit WithinScreen(QWidget *window)
        : QObject(window)
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const window = static_cast<QWidget *>(watched);
        constexpr auto whole = Qt::WindowMaximized | Qt::WindowFullScreen;
        if (!window->isWindow() || (window->windowState() & whole))
            return false;
        // Children are shown before the window, so they get an explicit size when the window is polished.
        const bool isPolished = event->type() == QEvent::Polish && window->testAttribute(Qt::WA_Resized);
        if (isPolished || (event->type() == QEvent::Show && !event->spontaneous()))
            fit(*window);
        return false;
    }

private:
    static void fit(QWidget &window)
    {
        // Else the window would change its size under the eyes of people, and scroll bars would flash.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const bool isGiven = window.testAttribute(Qt::WA_Resized);
        // Qt gives a window no more than two thirds of the screen, unless its layout insists.
        const QSize wanted = isGiven ? window.size() : window.size().expandedTo(window.sizeHint());
        window.resize(wanted.boundedTo(roomOnScreen(window)));
        window.setAttribute(Qt::WA_Resized, isGiven);
    }
};

/** Needs as much as what is in it, as far as there is room on the screen. */
class ContentsArea : public QScrollArea
{
public:
    explicit ContentsArea(QWidget *parent)
        : QScrollArea(parent)
    {
        setObjectName(QStringLiteral("scrollArea"));
        setFrameShape(NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        // Tab alone is followed by the area itself. A window that becomes active stays as it is.
        m_following = connect(qApp, &QApplication::focusChanged, this, [this](QWidget *former, QWidget *now) {
            const QWidget *const contents = widget();
            if (contents && former && now && contents->isAncestorOf(former) && contents->isAncestorOf(now))
                ensureWidgetVisible(now);
        });
    }

    /** Before the contents go, and the focus with them. */
    ~ContentsArea() override { disconnect(m_following); }

    QSize sizeHint() const override { return widget() ? withinRoom(widget()->sizeHint()) : QSize(); }
    QSize minimumSizeHint() const override { return widget() ? withinRoom(widget()->minimumSizeHint()) : QSize(); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }

private:
    /** With the width of a scroll bar where one is needed. */
    QSize withinRoom(QSize size) const
    {
        const QSize room = roomOnScreen(*window());
        if (size.height() > room.height())
            size.rwidth() += verticalScrollBar()->sizeHint().width();
        return size.boundedTo(room);
    }

    QMetaObject::Connection m_following;
};

} // namespace

QSize roomOnScreen(const QWidget &window)
{
    return window.screen()->availableGeometry().marginsRemoved(frameOf(window)).size();
}

void openWithinScreen(QWidget &window)
{
    new WithinScreen(&window);
}

void scrollWhereTooSmall(QWidget &window)
{
    openWithinScreen(window);
    auto *const area = new ContentsArea(&window);
    auto *const contents = new QWidget(area);
    contents->setObjectName(QStringLiteral("scrollAreaContents"));
    contents->setLayout(window.layout()); // which the window gives away, with the widgets
    area->setWidget(contents);
    auto *const layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
}
