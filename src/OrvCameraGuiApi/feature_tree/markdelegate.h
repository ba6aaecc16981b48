#pragma once

#include <OrvCameraGuiApi/feature_tree/valuewatch.h>
#include <OrvCameraGuiApi/windows/readabledelegate.h>

#include <QPointer>

class FeatureTree;

/**
 * Paints names, and a bar at the end of those whose value is marked: beside the value, and where painting reads no
 * register.
 */
class MarkDelegate : public ReadableDelegate
{
    Q_OBJECT

public:
    /** The tree outlives it. */
    MarkDelegate(const ValueWatch *watch, FeatureTree *tree);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /** Paints the bars of the rows on the screen again. */
    void updateMarks() const;

private:
    const QPointer<const ValueWatch> m_watch; ///< null once it has gone while this is painting
    FeatureTree *const m_tree;
};
