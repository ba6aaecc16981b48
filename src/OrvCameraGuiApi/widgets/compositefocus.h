#pragma once

#include <QObject>

class QWidget;

/**
 * Sends a composite a QEvent::FocusOut when the focus leaves its parts, after the parts have seen theirs. A delegate
 * and a QDataWidgetMapper watch the composite only, and take that event for the end of editing.
 */
class CompositeFocus : public QObject
{
public:
    /** Not a child of \a composite: it has to be destroyed before the parts are. */
    explicit CompositeFocus(QWidget *composite);
};
