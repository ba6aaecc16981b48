// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QObject>
#include <QScopedPointer>
#include <QStringList>

namespace OrvGui {

class OrvFeatureTreeToolsPrivate;
class OrvGenParamTreeView;

/**
 * Tools around an OrvGenParamTreeView, each of which is off until it is switched on: a context menu, reasons why a
 * feature cannot be written, favorites, a part of the tree alone, a bar that finds features, marks on values
 * that change.
 *
 * Features are named by their GenICam names. What concerns a node map ends when the view gets another one: showing a
 * category alone, and which values have changed. A view has one object of this class at most. View and tools may be
 * destroyed in any order; without a view the tools do nothing. GUI thread only. Nothing throws, whatever the node map
 * does. Slots may do what those of the view may, and delete the tools.
 */
class ORV_CAMERAGUIAPI_EXPORT OrvFeatureTreeTools : public QObject
{
    Q_OBJECT

public:
    /** \a view stays the caller's and may be null. */
    explicit OrvFeatureTreeTools(OrvGenParamTreeView *view, QObject *parent = nullptr);

    /** Takes all tools from the view. */
    ~OrvFeatureTreeTools() override;

    /**
     * Whether the right mouse button, the Menu key and Shift+F10 open a menu for the row: texts to copy, reading again,
     * executing a command, the ways from a feature to its selectors and back, the category alone, and favorites.
     * @{
     */
    bool hasContextMenu() const;
    void setContextMenu(bool on);
    /** @} */

    /**
     * Whether the description of a feature that cannot be written says why. The names in it are links to the features.
     * @{
     */
    bool tellsReasons() const;
    void setTellsReasons(bool on);
    /** @} */

    /**
     * Why the feature cannot be written, in the language of the user, as plain text; empty for one that can be, for a
     * category and for an unknown name. May read the registers on which it depends.
     */
    QString reasonFor(const QString &name) const;

    /** The favorites, in the order in which they were added; other cameras' names among them do no harm. @{ */
    QStringList favorites() const;
    void setFavorites(const QStringList &names);
    bool isFavorite(const QString &name) const;
    void setFavorite(const QString &name, bool on);
    /** @} */

    /** Whether only favorites are shown, with the categories that they stand in. @{ */
    bool showsFavoritesOnly() const;
    void setShowsFavoritesOnly(bool on);
    /** @} */

    /**
     * Whether values are compared with those that were read first since the view got its node map, or since this was
     * switched on. Only values that are read anyway, because they are shown, are compared; with another choice of a
     * selector what it selects may differ.
     * @{
     */
    bool tracksChanges() const;
    void setTracksChanges(bool on);
    /** @} */

    /** The features whose value differs from the first, sorted. */
    QStringList changedFeatures() const;

    /**
     * Whether only features are shown whose value differs from the first, with the categories that they stand in.
     * Switches tracksChanges() on. A feature that is hidden and reports a change is shown until its value has been
     * read, and longer if that differs from the first; a value that had not been seen before counts as the first. A
     * feature that is polled, or reads what is, reports too often for that. Another node map ends it.
     * @{
     */
    bool showsChangedOnly() const;
    void setShowsChangedOnly(bool on);
    /** @} */

    /** Whether a bar beside a value that differs from what was shown before tells so for a moment. @{ */
    bool marksChanges() const;
    void setMarksChanges(bool on);
    /** @} */

    /** The category that is shown alone; empty for none. */
    QString onlyCategory() const;

    /** Shows only that category, or ends it for an empty name. False, and nothing changes, for what is no category. */
    bool showOnlyCategory(const QString &name);

    /**
     * Makes the feature current and opens the categories above it. If it is hidden because only a part is shown, more
     * is shown. False if the feature is hidden by the visibility level or the text of the filter, or does not exist;
     * told() says which.
     */
    bool jumpTo(const QString &name);

    /**
     * Whether Ctrl+Shift+F opens a bar that finds features by their names among the rows that the filter lets pass. F3
     * and Shift+F3 go to the next match and back; Escape closes the bar.
     * @{
     */
    bool hasFindBar() const;
    void setFindBar(bool on);
    /** @} */

    /** What the keys do; nothing without the bar. @{ */
    void find();
    void findNext();
    void findPrevious();
    /** @} */

    /** Drops what is known of the feature, or of those that are shown in the category, so that what is seen is read. */
    void readAgain(const QString &name);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void favoritesChanged();

    /** Emitted from the event loop. */
    void changedFeaturesChanged();

    /** Which part of the features is shown. */
    void shownPartChanged();

    /** Something for the user to know, as plain text. */
    void told(const QString &message);

private:
    friend class OrvFeatureTreeToolsPrivate;

    const QScopedPointer<OrvFeatureTreeToolsPrivate> d;
};

} // namespace OrvGui
