#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QPair>
#include <QTreeView>
#include <QVector>

class FeatureSelection;

/**
 * A tree view for large models whose values change often. A changed value costs next to nothing unless its row is on
 * the screen or its editor is open: QTreeView searches the row among all that are expanded, which with many rows takes
 * longer than all else that is done about a change.
 *
 * For rows of one height; with others it is a QTreeView.
 *
 * All can be done by keys. On a feature's row F2 and Return open the editor of its value, whichever column is current.
 * Right and Left move between the columns and open nothing. In the value column Space toggles a boolean and executes a
 * command; while names are being searched by typing it belongs to the search. This comes beside the edit triggers, and
 * what is not editable, or has its trigger for keys taken away, stays as it is.
 *
 * The current item is never inside a category that is closed: it moves to that, without opening an editor.
 */
class FeatureTree : public QTreeView
{
    Q_OBJECT

public:
    explicit FeatureTree(QWidget *parent = nullptr);

    /** A row that can be seen, at least in part. */
    struct Row
    {
        QModelIndex index; ///< in the column that is shown first
        QRect rect; ///< of all columns, in viewport coordinates
    };

    /** From top to bottom; rows that stand in several places are there several times. For rows of one height. */
    QVector<Row> rowsOnScreen() const;

    /** Writes what is entered in the editor that is open at \a index, if it counts, and closes the editor. */
    void endEditing(const QModelIndex &index);

    /** Whether the keys go to the tree or to an editor in it, with all that this has opened. */
    bool hasFocusInside() const;

    /** Makes \a index the current one, whatever the edit triggers are, without opening an editor there. */
    void moveCurrentTo(const QModelIndex &index);

    /** Has a FeatureSelection then, unless there is no \a model; the former selection model is freed. */
    void setModel(QAbstractItemModel *model) override;

    /** Null without a model, or when somebody has set another selection model. */
    FeatureSelection *featureSelection() const;

    /** Whether no editor opens and no key changes a value; what is open closes unwritten. Off by default. */
    bool isReadOnly() const { return m_isReadOnly; }
    void setReadOnly(bool readOnly);

    using QTreeView::edit;

    void keyboardSearch(const QString &search) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void keepWhatIsInUse();
    bool handleKey(const QKeyEvent &event);
    bool openValue(const QKeyEvent &event);
    bool moveBetweenColumns(bool forward);
    bool handleSpace(const QKeyEvent &event);
    QModelIndex editableValue() const;
    bool isSearching() const;
    void moveCurrentIntoSight();
    void findRowsOnScreen();
    bool concerns(const QModelIndex &topLeft, const QModelIndex &bottomRight) const;
    bool isElsewhereToo(const QModelIndex &index) const;

    /**
     * By internal identifier and row, in how many places each is; a row that has come since then is being painted
     * anyhow, or will be.
     */
    QHash<QPair<quintptr, int>, int> m_rowsOnScreen;
    QElapsedTimer m_sinceSearch; ///< since the last key of a search by typing
    bool m_isReadOnly = false;
    bool m_opensNothing = false; ///< the current item moves by itself
};
