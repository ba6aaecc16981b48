// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/iorvgenparamtreeview.h>

#include <QDialog>
#include <QScopedPointer>

class QTreeView;

namespace OrvGui {

class OrvGenParamTreeViewPrivate;

/**
 * Shows the features of a camera as a tree and lets people edit them.
 *
 * Above the tree: buttons that collapse and expand it, a filter for the features' names, the level of visibility and a
 * button that shows whether reading or writing a feature has failed and opens the list of failures. Below it: a
 * description of the current feature.
 *
 * A window of its own by default. To put it into another one, take its window flags away:
 * \code
 * auto *view = new OrvGui::OrvGenParamTreeView(nodeMap, this);
 * view->setWindowFlags(Qt::Widget);
 * layout->addWidget(view);
 * \endcode
 * While the view reads or writes, callbacks of the node map and slots of its signals may do anything, also run event
 * loops and take the node map from the view, with one exception: they must not delete the view. As with any widget,
 * QObject::deleteLater() is for that.
 *
 * Its icons have a second form for screens of high density, which Qt uses when Qt::AA_UseHighDpiPixmaps is set.
 */
class ORV_CAMERAGUIAPI_EXPORT OrvGenParamTreeView : public QDialog, public IOrvGenParamTreeView
{
    Q_OBJECT

public:
    /** Without features. */
    explicit OrvGenParamTreeView(QWidget *parent = nullptr);

    /** \a nodeMap as in setParams(). */
    explicit OrvGenParamTreeView(GenApi::INodeMap *nodeMap, QWidget *parent = nullptr);

    /** \a params as in setParams(). */
    explicit OrvGenParamTreeView(OrvGenParam::Array *params, QWidget *parent = nullptr);

    ~OrvGenParamTreeView() override;

    void setParams(OrvGenParam::Array *params) override;
    void setParams(GenApi::INodeMap *nodeMap) override;
    void clearParams() override;

    Visibility visibility() const override;
    void setVisibility(Visibility level) override;

    const char *saveState() const override;
    void loadState(const char *state) override;

    void setPollingTime(unsigned long milliseconds) override;
    unsigned long getPollingTime() override;
    void enablePolling(bool on) override;
    bool isPollingEnabled() override;

    /** The tree; never null. The view owns its model: another one after each setParams(), null after clearParams(). */
    QTreeView *treeView() const;

    /**
     * The state, as saveState() returned it, when a node map was last taken away or replaced; empty when that has not
     * happened yet. Valid until it happens again.
     */
    const char *lastState() const;

    /** The text of the filter: a pattern with "*" and "?", by default empty. @{ */
    QString filterText() const;
    void setFilterText(const QString &text);
    /** @} */

    /** Whether the filter also lets features pass whose GenICam name matches. Off by default. @{ */
    bool filterMatchesNames() const;
    void setFilterMatchesNames(bool on);
    /** @} */

    /** Whether the features are read-only for people. Off by default. An open editor closes unwritten. @{ */
    bool isReadOnly() const;
    void setReadOnly(bool readOnly);
    /** @} */

    /** The role of the tree's model under which a row has its feature's GenICam name. */
    static constexpr int FeatureNameRole = Qt::UserRole + 100;

Q_SIGNALS:
    /** The current row, by its feature's GenICam name; empty for none. */
    void currentFeatureChanged(const QString &name);

    /** A value that was entered in the tree has been written, or a command executed. */
    void featureWritten(const QString &name);

    /** Reading or writing the feature has failed for the first time. Emitted later, from the event loop. */
    void errorOccurred(const QString &name, const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    friend class OrvGenParamTreeViewPrivate;

    const QScopedPointer<OrvGenParamTreeViewPrivate> d;
};

} // namespace OrvGui
