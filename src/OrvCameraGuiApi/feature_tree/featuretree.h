// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QPair>
#include <QTreeView>
#include <QVector>

#include <functional>
#include <optional>

class FeatureSelection;

/**
 * A tree view for large models whose values change often. A changed value costs next to nothing unless its row is on
 * the screen or its editor is open. QTreeView searches for the row among all expanded rows, which takes longer than
 * everything else that a change causes.
 *
 * This needs rows of one height; with others the class works like QTreeView.
 *
 * Everything can be done by keys. On a feature's row F2 and Return open the editor of its value, whichever column is
 * current. Right and Left move between the columns and open nothing. In the value column Space toggles a boolean and
 * executes a command; during a search by typing it belongs to the search. The edit triggers work as usual beside these
 * keys. A value that is not editable stays as it is, and without EditKeyPressed among the triggers so does every value.
 *
 * The current item is never inside a closed category: it moves to the category, without opening an editor.
 */
class FeatureTree : public QTreeView
{
    Q_OBJECT

public:
    explicit FeatureTree(QWidget *parent = nullptr);

    /** A row that is visible at least in part. */
    struct Row
    {
        QModelIndex index; ///< in the first visible column
        QRect rect; ///< of all columns, in viewport coordinates
    };

    /** From top to bottom; a row that stands in several places is listed for each. For rows of one height. */
    QVector<Row> rowsOnScreen() const;

    /** Writes the entry in the editor that is open at \a index, if it counts, and closes the editor. */
    void endEditing(const QModelIndex &index);

    /** Whether the focus is in the tree, in an editor or in a window that an editor has opened. */
    bool hasFocusInside() const;

    /** Paints over a row, given in viewport coordinates, and asks no node. */
    using Decoration = std::function<void(QPainter &painter, const QRect &row, const QModelIndex &index)>;

    /** None at first, and if \a decoration is empty. */
    void setDecoration(Decoration decoration);

    /** Makes \a index current without opening an editor, whatever the edit triggers are. */
    void moveCurrentTo(const QModelIndex &index);

    /** Sets a FeatureSelection too, if there is a \a model, and gives up the former selection model. */
    void setModel(QAbstractItemModel *model) override;

    /** Null without a model, and when the selection model is another one. */
    FeatureSelection *featureSelection() const;

    /** What is saved of the expansion while only a part of the features is shown, if anything: see TreeState. @{ */
    const std::optional<QByteArray> &keptExpansion() const { return m_keptExpansion; }
    void keepExpansion(const std::optional<QByteArray> &expansion) { m_keptExpansion = expansion; }
    /** @} */

    /** Whether no editor opens and no key changes a value. Editors that are open close unwritten. Off by default. */
    bool isReadOnly() const { return m_isReadOnly; }
    void setReadOnly(bool readOnly);

    using QTreeView::edit;

    /** Opens \a category and those that it stands in; invalid for none. */
    void openCategory(const QModelIndex &category);

    /** Opens the categories that \a index stands in, and moves there as moveCurrentTo(). False if the row has gone. */
    bool jumpTo(const QModelIndex &index);

    void keyboardSearch(const QString &search) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;

Q_SIGNALS:
    /** Another model, or none, has been set; selection model and header have followed. */
    void modelReplaced();

    /** What the model says about the current row has changed beside its value. */
    void helpOutdated();

    /** The view that the tree belongs to is about to be destroyed; both are still whole. */
    void viewIsGoing();

protected:
    /** As with Qt 5, which passes over an editor that the view has let go; Qt 6 warns of it. @{ */
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    /** @} */
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    bool isLetGo(const QWidget *editor) const;
    bool isEditor(const QWidget *child) const;
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
     * The rows on the screen, by internal identifier and row number, and the number of places of each, at the last
     * paint. A row that has been inserted since then is painted anyhow.
     */
    QHash<QPair<quintptr, int>, int> m_rowsOnScreen;
    QElapsedTimer m_sinceSearch; ///< since the last key of a search by typing
    std::optional<QByteArray> m_keptExpansion;
    Decoration m_decoration;
    bool m_isReadOnly = false;
    bool m_opensNothing = false; ///< while the current item moves without the user
};
