#pragma once

#include <QObject>

class QWidget;

/**
 * Lets a composite see a QEvent::FocusOut when the focus leaves its parts, after these have seen theirs. A delegate or
 * a QDataWidgetMapper watches only the composite, and takes that for the end of editing.
 */
class CompositeFocus : public QObject
{
public:
    /** Not its child: it has to go before the parts of \a composite do. */
    explicit CompositeFocus(QWidget *composite);
};
