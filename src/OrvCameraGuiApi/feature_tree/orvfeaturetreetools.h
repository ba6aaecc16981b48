#pragma once

#include <OrvCameraGuiApi/export.h>

#include <QObject>
#include <QScopedPointer>
#include <QStringList>

namespace OrvGui {

class OrvFeatureTreeTools;
class OrvFeatureTreeToolsPrivate;
class OrvGenParamTreeView;

/**
 * Tools around an OrvGenParamTreeView, each of which is off until it is switched on: a context menu, reasons why a
 * feature cannot be written, favorites, a part of the tree alone.
 *
 * Features are named by their GenICam names. What concerns a node map ends when the view gets another one: showing a
 * category alone. A view has one object of this class at most. View and tools may be destroyed in any order; without a
 * view the tools do nothing. GUI thread only. Nothing throws, whatever the node map does. Slots may do what those of
 * the view may, and delete the tools.
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

    /** Drops what is known of the feature, or of those that are shown in the category, so that what is seen is read. */
    void readAgain(const QString &name);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void favoritesChanged();

    /** Which part of the features is shown. */
    void shownPartChanged();

    /** Something for the user to know, as plain text. */
    void told(const QString &message);

private:
    friend class OrvFeatureTreeToolsPrivate;

    const QScopedPointer<OrvFeatureTreeToolsPrivate> d;
};

} // namespace OrvGui
