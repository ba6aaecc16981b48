#include <OrvCameraGuiApi/camconfig/orvcamconfigmapper.h>

#include <OrvCameraGuiApi/camconfig/controlwatch.h>
#include <OrvCameraGuiApi/camconfig/errortexts.h>
#include <OrvCameraGuiApi/widgets/entryguard.h>
#include <OrvCameraGuiApi/widgets/qtorvslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>
#include <OrvCameraGuiApi/widgets/spinsliderlink.h>

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaMethod>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

using Kind = OrvGui::OrvCamConfigMapData::Kind;

const char *const entryValueProperty = "orvEntryValue";
const char *const groupNameProperty = "accessibleName";
const int entryIndexRole = Qt::UserRole + 0x4f52; ///< of the items of a combo box: which entry they stand for

QString nameOf(OrvGenParam::Param *param)
{
    return QString::fromUtf8(param->GetName());
}

QString nameOf(OrvGenParam::EnumEntry *entry)
{
    return QString::fromUtf8(entry->GetValueStr(nullptr));
}

bool isUsable(OrvGenParam::Param *param)
{
    return param->IsAvailable() && param->IsWritable();
}

int toInt(std::int64_t value)
{
    using Limits = std::numeric_limits<int>;
    return int(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/** The control's own signals; those of QObject and QWidget are nobody's entry. */
void disconnectOwnSignals(QObject *control)
{
    const QMetaObject *const meta = control->metaObject();
    const QMetaObject &base = control->isWidgetType() ? QWidget::staticMetaObject : QObject::staticMetaObject;
    for (int i = base.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            QObject::disconnect(control, meta->method(i), nullptr, QMetaMethod());
    }
}

/** Where one action of the user makes two signals: both together are one entry. */
class OneEntry
{
public:
    /** The second signal is still to come, if at all, before the event loop runs. */
    void begin(QObject *context) const
    {
        *m_begun = true;
        endSoon(context, m_begun, QThread::currentThread()->loopLevel());
    }
    bool isSecondSignal() const { return std::exchange(*m_begun, false); }

private:
    /** Not by an event loop that a slot runs between the two signals. */
    static void endSoon(QObject *context, const std::shared_ptr<bool> &begun, int level)
    {
        const bool isNested = QThread::currentThread()->loopLevel() > level;
        QTimer::singleShot(isNested ? 20 : 0, context, [=] {
            if (QThread::currentThread()->loopLevel() > level)
                endSoon(context, begun, level);
            else
                *begun = false;
        });
    }

    const std::shared_ptr<bool> m_begun = std::make_shared<bool>(false);
};

template <typename Control>
void showRange(Control *control, int minimum, int maximum, int)
{
    control->setRange(minimum, maximum);
}

/** A QSlider can take no range of 2^31 or more: the bound that is farther from the value moves inwards. */
void showRange(QSlider *slider, int minimum, int maximum, int value)
{
    constexpr std::int64_t widest = std::numeric_limits<int>::max();
    if (std::int64_t(maximum) - minimum > widest) {
        if (std::int64_t(maximum) - value <= widest)
            minimum = int(maximum - widest);
        else
            maximum = int(minimum + widest);
    }
    slider->setRange(minimum, maximum);
}

template <typename Control>
void showValue(Control *control, int value)
{
    control->setValue(value);
}

/**
 * What the camera says is shown as it is: only entries are moved to a step. What shows already is left alone, and with
 * it what is being typed.
 */
template <typename Composite>
void showInComposite(Composite *composite, int value)
{
    if (composite->value() != value || SpinSlider::isEmptied(composite->spinBox()))
        SpinSlider::showUnmoved(composite->spinBox(), value);
}

void showValue(QtOrvSpinBox *spinBox, int value)
{
    showInComposite(spinBox, value);
}

void showValue(QtOrvSliderSpinBox *spinBox, int value)
{
    showInComposite(spinBox, value);
}

/** Where there is no number to show, a field shows none. */
void showNothing(QSlider *) { }

void showNothing(QSpinBox *spinBox)
{
    spinBox->clear();
}

template <typename Composite>
void showNothing(Composite *composite)
{
    composite->spinBox()->clear();
}

QButtonGroup *groupOf(const OrvGui::OrvCamConfigMapData &record)
{
    return record.type == Kind::RadioButtons ? static_cast<QButtonGroup *>(record.extra) : nullptr;
}

/** The value that a button stands for, which its id need not tell: that cannot be -1, nor wider than an int. */
std::int64_t valueOf(QButtonGroup *group, QAbstractButton *button)
{
    const QVariant value = button->property(entryValueProperty);
    return value.isValid() ? value.toLongLong() : group->id(button);
}

/** Whether a button has no entry: its id is one of before. */
bool isLeftOver(QAbstractButton *button)
{
    return button->property(entryValueProperty).userType() == QMetaType::QString;
}

QAbstractButton *buttonOf(QButtonGroup *group, std::int64_t value)
{
    const QList<QAbstractButton *> buttons = group->buttons();
    const auto stands = [&](QAbstractButton *button) { return !isLeftOver(button) && valueOf(group, button) == value; };
    const auto found = std::find_if(buttons.begin(), buttons.end(), stands);
    return found == buttons.end() ? nullptr : *found;
}

void uncheckAll(QButtonGroup *group)
{
    const bool isExclusive = group->exclusive();
    group->setExclusive(false);
    if (QAbstractButton *const button = group->checkedButton())
        button->setChecked(false);
    group->setExclusive(isExclusive);
}

void enableButtons(OrvGenParam::Enum *param, QButtonGroup *group, bool enabled)
{
    const QList<QAbstractButton *> buttons = group->buttons();
    for (QAbstractButton *const button : buttons)
        button->setEnabled(enabled);
    const int entries = param && enabled ? param->GetEnumEntriesCount(nullptr) : 0;
    for (int i = 0; i < entries; ++i) {
        OrvGenParam::EnumEntry *const entry = param->GetEnumEntryByIndex(i, nullptr);
        QAbstractButton *const button = entry ? buttonOf(group, entry->GetValue(nullptr)) : nullptr;
        if (button)
            button->setEnabled(entry->IsAvailable());
    }
}

/** What emits the signals of a binding's control; null for one that has gone. */
QObject *controlOf(const OrvGui::OrvCamConfigMapData &record)
{
    QButtonGroup *const group = groupOf(record);
    return group ? static_cast<QObject *>(group) : record.control.data();
}

void clearMarks(const OrvGui::OrvCamConfigMapData &record)
{
    QWidgetList marked{record.control};
    if (QButtonGroup *const group = groupOf(record)) {
        const QList<QAbstractButton *> buttons = group->buttons();
        marked = QWidgetList(buttons.begin(), buttons.end());
    }
    for (QWidget *const control : qAsConst(marked)) {
        if (OrvGui::ControlWatch *const watch = OrvGui::ControlWatch::of(control))
            watch->clear();
    }
}

/** The symbolic value, else the number; empty when it cannot be read. */
QString valueInWords(OrvGenParam::Enum *param)
{
    OrvCamErr err = OrvCamErr_Ok;
    const std::int64_t value = param->GetValue(&err);
    if (err != OrvCamErr_Ok)
        return {};
    const QString symbolic = QString::fromUtf8(param->GetValueStr(nullptr));
    return symbolic.isEmpty() ? QString::number(value) : symbolic;
}

/** The control shows the camera's value; its tool tip gives \a value, if there is one, for what it cannot show. */
void noteValue(const QWidget *control, const QString &value)
{
    OrvGui::ControlWatch *const watch = OrvGui::ControlWatch::of(control);
    if (!watch)
        return;
    watch->clear();
    if (!value.isEmpty())
        watch->note(OrvGui::ControlWatch::valueText(value));
}

/** Whether the camera's value is another one than that of an entry, or cannot be read. @{ */
bool differs(OrvGenParam::Int *param, std::int64_t value)
{
    OrvCamErr err = OrvCamErr_Ok;
    return !param->IsReadable() || param->GetValue(&err) != value || err != OrvCamErr_Ok;
}

bool differs(OrvGenParam::Enum *param, std::int64_t value)
{
    OrvCamErr err = OrvCamErr_Ok;
    return !param->IsReadable() || param->GetValue(&err) != value || err != OrvCamErr_Ok;
}

bool differs(OrvGenParam::Enum *param, const QByteArray &symbolic)
{
    OrvCamErr err = OrvCamErr_Ok;
    return !param->IsReadable() || symbolic != param->GetValueStr(&err) || err != OrvCamErr_Ok;
}

/** A check box stands for every value but 0. */
template <typename Param>
bool differs(Param *param, bool value)
{
    OrvCamErr err = OrvCamErr_Ok;
    return !param->IsReadable() || (param->GetValue(&err) != 0) != value || err != OrvCamErr_Ok;
}
/** @} */

/** A message on the screen. It can be answered whatever becomes of its parent, which a lost camera disables. */
class ErrorBox : public QMessageBox
{
public:
    ErrorBox(const QString &text, QWidget *parent)
        : QMessageBox(QMessageBox::Critical, QString(), text, QMessageBox::Ok, parent)
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setTextFormat(Qt::PlainText);
        setDefaultButton(QMessageBox::Ok);
        setModal(true);
    }

    static bool isShown(const QString &text, const QWidget *parent)
    {
        const auto boxes = parent ? parent->findChildren<QMessageBox *>(QString(), Qt::FindDirectChildrenOnly)
                                  : QList<QMessageBox *>();
        return std::any_of(boxes.begin(), boxes.end(),
                           [&](QMessageBox *box) { return box->isVisible() && box->text() == text; });
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QMessageBox::changeEvent(event);
        if (event->type() == QEvent::EnabledChange && !isEnabled())
            setEnabled(true);
    }
};

void showError(OrvCamErr err, QWidget *parent, const QString &name)
{
    if (err == OrvCamErr_Ok)
        return;
    const QString text = OrvGui::OrvCamConfigMapper::tr("Error while working with '%1' parameter!\r\nDescription: %2")
                             .arg(name, OrvGui::OrvCamConfigMapper::tr(orvCamErrDescription(err)));
    if (ErrorBox::isShown(text, parent))
        return;
    // A pop-up would keep mouse and keys from the box.
    if (QWidget *const popup = QApplication::activePopupWidget())
        popup->close();
    (new ErrorBox(text, parent))->show();
}

/** What is left of a field that is as large as it wants to be when its caption is taken away. */
QSize fieldSize(const QtOrvSpinBox *spinBox)
{
    QSize size = spinBox->sizeHint();
    if (!size.isValid())
        size = spinBox->geometry().size();
    const QLabel *const label = spinBox->leftLabel();
    return label && !label->isHidden() ? size - QSize(label->width(), 0) : size;
}

} // namespace

namespace OrvGui {

bool OrvCamConfigMapData::operator==(const OrvCamConfigMapData &other) const
{
    return type == other.type && control == other.control && extra == other.extra;
}

/** While one lives, entries are not written. It may outlive the mapper. */
class OrvCamConfigMapper::RefreshGuard
{
public:
    explicit RefreshGuard(const OrvCamConfigMapper *mapper)
        : m_refreshes(mapper->m_refreshes)
    {
        m_refreshes->append(QThread::currentThread()->loopLevel());
    }
    ~RefreshGuard() { m_refreshes->removeLast(); }
    Q_DISABLE_COPY(RefreshGuard)

private:
    const std::shared_ptr<QVector<int>> m_refreshes;
};

/** What the user entered into a control. */
struct OrvCamConfigMapper::Entry
{
    OrvGenParam::Param *param;
    QWidget *control; ///< that was used; of a group the button
    std::function<bool()> isNews; ///< whether the camera's value differs, or cannot be read
    std::function<OrvCamErr()> write;
};

/** An integer feature as a widget shows it. */
struct OrvCamConfigMapper::IntView
{
    int minimum;
    int maximum;
    int step;
    int value;
    std::int64_t trueValue; ///< not limited to what the control can show
    bool isKnown; ///< the value could be read
};

OrvCamConfigMapper::OrvCamConfigMapper(std::int64_t upperClamp)
    : m_upperClamp(upperClamp)
    , m_refreshes(std::make_shared<QVector<int>>())
    , m_reports([this](OrvGenParam::Param *param) {
        if (std::find(m_params.cbegin(), m_params.cend(), param) != m_params.cend()) // else unbound meanwhile
            show(param);
    })
{
}

OrvCamConfigMapper::~OrvCamConfigMapper() = default;

/*
 * What all bindings begin with. The parameter tells about its changes again when the binding is complete: a
 * notification that comes meanwhile would find half of it.
 */
bool OrvCamConfigMapper::prepare(OrvGenParam::Param *param, const OrvCamConfigMapData &record)
{
    QButtonGroup *const group = groupOf(record);
    if (!group && !record.control)
        return false;
    if (!param) {
        setEnabled(record, nullptr, false);
        return false;
    }
    param->UnregisterEvent(this);
    disconnectOwnSignals(controlOf(record));
    setEnabled(record, param, isUsable(param));
    const QString name = nameOf(param);
    const Records former = std::exchange(m_bindings[name], Records{record});
    // The same control bound again stays as it has just become.
    if (!former.isEmpty() && !(former.first().control == record.control && groupOf(former.first()) == group))
        unmapControl(former.first());
    return true;
}

/** The context for the connections of one binding; those of the control's former binding end. */
QObject *OrvCamConfigMapper::newContext(const OrvCamConfigMapData &record)
{
    QSharedPointer<QObject> &context = m_contexts[controlOf(record)];
    context.reset(new QObject);
    return context.data();
}

/** Has \a control marked where that is needed. A refused entry is given up for the camera's value. */
void OrvCamConfigMapper::watch(OrvGenParam::Param *param, QWidget *control)
{
    ControlWatch *const watch = ControlWatch::install(control);
    watch->clear();
    QObject::disconnect(watch, &ControlWatch::entryGivenUp, nullptr, nullptr);
    QObject::connect(watch, &ControlWatch::entryGivenUp, &m_context, [this, param, name = nameOf(param)] {
        if (m_params.value(name) == param)
            show(param);
    });
}

void OrvCamConfigMapper::registerAt(OrvGenParam::Param *param)
{
    OrvGenParam::Param *&registered = m_params[nameOf(param)];
    if (registered && registered != param)
        registered->UnregisterEvent(this);
    registered = param;
    param->UnregisterEvent(this);
    param->RegisterEvent(this);
}

/** In an event loop that a slot of a refresh runs, the user enters as always. */
bool OrvCamConfigMapper::isBarred() const
{
    return isRefreshing() && m_refreshes->last() >= QThread::currentThread()->loopLevel();
}

/*
 * While the camera is told, anything may happen: it may report, and what hangs on that may unbind the parameter or
 * destroy the control and the mapper. A message needs none of them but the control.
 */
void OrvCamConfigMapper::enter(const Entry &entry)
{
    if (isBarred())
        return dropWhileRefreshing(entry);
    if (!entry.param->IsWritable() || !entry.isNews())
        return takeBack(entry.param, entry.control);
    const QString name = nameOf(entry.param);
    const unsigned timesShown = m_timesShown.value(name);
    const QPointer<QWidget> control(entry.control);
    const QPointer<QObject> alive(&m_context);
    const OrvCamErr err = entry.write();
    // A report that came meanwhile has shown what the camera took.
    const bool isUnheard = alive && m_params.value(name) == entry.param && m_timesShown.value(name) == timesShown;
    if (isUnheard && err == OrvCamErr_Ok) {
        if (!show(entry.param) && ControlWatch::of(control))
            ControlWatch::of(control)->clear();
    } else if (isUnheard && control) {
        mark(entry.param, control);
    }
    if (control)
        showError(err, control, name);
}

/**
 * The control's own echo is no entry. Anything else is taken back after the refresh, and marked if it comes again while
 * that is done: whoever insists on it would be asked for ever.
 */
void OrvCamConfigMapper::dropWhileRefreshing(const Entry &entry)
{
    if (!entry.isNews())
        return;
    if (m_isSettling)
        return mark(entry.param, entry.control);
    if (m_dropped.isEmpty())
        QTimer::singleShot(0, &m_context, [this] { settle(); });
    m_dropped.insert(nameOf(entry.param), entry.control);
}

void OrvCamConfigMapper::settle()
{
    const QPointer<QObject> alive(&m_context);
    const auto dropped = std::exchange(m_dropped, {});
    for (auto it = dropped.begin(); it != dropped.end() && alive; ++it) {
        OrvGenParam::Param *const param = m_params.value(it.key());
        if (!param)
            continue;
        m_isSettling = true;
        takeBack(param, it.value());
        if (alive)
            m_isSettling = false;
    }
}

/** Shows the camera's value in the place of what was entered; where it cannot be read the entry is marked. */
void OrvCamConfigMapper::takeBack(OrvGenParam::Param *param, QWidget *control)
{
    const QPointer<QWidget> entered(control);
    const QPointer<QObject> alive(&m_context);
    if (!show(param) && alive && entered)
        mark(param, entered);
}

/** A page is never left with the entry of another one: what is edited there would go to the camera's. */
void OrvCamConfigMapper::mark(OrvGenParam::Param *param, QWidget *control)
{
    if (qobject_cast<QTabWidget *>(control))
        show(param);
    else if (ControlWatch *const watch = ControlWatch::of(control))
        watch->mark(cameraText(param, control));
}

/** The camera's value as \a control would show it; empty when it cannot be read. */
QString OrvCamConfigMapper::cameraText(OrvGenParam::Param *param, const QWidget *control) const
{
    OrvCamErr err = OrvCamErr_Ok;
    QString text;
    if (!param->IsReadable())
        return text;
    if (auto *const number = dynamic_cast<OrvGenParam::Int *>(param)) {
        const Records records = m_bindings.value(nameOf(param));
        const bool converts = !records.isEmpty() && records.first().type == Kind::SliderSpinBox;
        auto *const converter = converts ? static_cast<IOrvCamConfigIntConverter *>(records.first().extra) : nullptr;
        const std::int64_t value = number->GetValue(&err);
        text = ControlWatch::numberText(converter ? converter->ToControl(value, number) : value, control);
    } else if (auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param)) {
        text = QString::fromUtf8(choice->GetValueStr(&err));
    } else if (auto *const truth = dynamic_cast<OrvGenParam::Boolean *>(param)) {
        text = truth->GetValue(&err) ? OrvGui::OrvCamConfigMapper::tr("on") : OrvGui::OrvCamConfigMapper::tr("off");
    }
    return err == OrvCamErr_Ok ? text : QString();
}

int OrvCamConfigMapper::mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox)
{
    return mapIntParam(param, spinBox, QVector<QWidget *>());
}

int OrvCamConfigMapper::mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox,
                                    const QVector<QWidget *> &companions)
{
    const RefreshGuard guard(this);
    const bool isBound = bindNumber(param, spinBox, {Kind::SpinBox, spinBox, nullptr});
    for (QWidget *const companion : companions) {
        const OrvCamConfigMapData record{Kind::Companion, companion, nullptr};
        setEnabled(record, param, param && isUsable(param));
        if (isBound)
            m_bindings[nameOf(param)].append(record);
    }
    return isBound;
}

int OrvCamConfigMapper::mapIntParam(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                                    IOrvCamConfigIntConverter *converter)
{
    const RefreshGuard guard(this);
    return bindNumber(param, spinBox, {Kind::SliderSpinBox, spinBox, converter});
}

/*
 * The slider's release says the number once more, moved or not, and so does a typed number that stands there already.
 * Only what was moved or typed is an entry.
 */
template <typename Composite>
int OrvCamConfigMapper::bindNumber(OrvGenParam::Int *param, Composite *composite, const OrvCamConfigMapData &record)
{
    if (!prepare(param, record))
        return 0;
    composite->setValidate(true);
    composite->setValidateTyping(false);
    composite->spinBox()->setEntryGuarded(true);
    watch(param, composite);
    refresh(param, record);

    auto *const converter = static_cast<IOrvCamConfigIntConverter *>(record.extra);
    const auto enterNumber = [=](int value) {
        const auto toDevice = [=] { return converter ? converter->ToDevice(value, param) : value; };
        enter({param, composite, [=] { return differs(param, toDevice()); },
               [=] { return param->SetValue(toDevice()); }});
    };
    struct Said
    {
        int value;
        bool isMoved;
    };
    const auto said = std::make_shared<Said>(Said{composite->value(), false});
    QObject *const context = newContext(record);
    QObject::connect(composite, QOverload<int>::of(&Composite::valueChanged), context, [=](int value) {
        const bool isSaidAgain = value == said->value && !said->isMoved;
        *said = {value, false};
        if (!isSaidAgain)
            enterNumber(value);
    });
    QObject::connect(composite->slider(), &QtOrvSlider::sliderPressed, context, [=] { said->isMoved = false; });
    QObject::connect(composite->slider(), &QtOrvSlider::sliderMoved, context, [=] { said->isMoved = true; });
    QObject::connect(EntryGuard::of(composite->spinBox()), &EntryGuard::entered, context,
                     [=] { enterNumber(composite->value()); });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QComboBox *comboBox)
{
    const RefreshGuard guard(this);
    const OrvCamConfigMapData record{Kind::ComboBox, comboBox, nullptr};
    if (!prepare(param, record))
        return 0;
    comboBox->clear();
    const int entries = param->GetEnumEntriesCount(nullptr);
    for (int i = 0; i < entries; ++i) {
        if (OrvGenParam::EnumEntry *const entry = param->GetEnumEntryByIndex(i, nullptr)) {
            comboBox->addItem(nameOf(entry));
            comboBox->setItemData(comboBox->count() - 1, i, entryIndexRole);
        }
    }
    watch(param, comboBox);
    updateComboBox(param, comboBox);
    const auto choose = [=](int index) {
        const QByteArray text = comboBox->itemText(index).toUtf8();
        enter({param, comboBox, [=] { return differs(param, text); },
               [=] { return param->SetValueStr(text.constData()); }});
    };
    QObject *const context = newContext(record);
    const OneEntry oneEntry;
    QObject::connect(comboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), context, [=](int index) {
        oneEntry.begin(context);
        if (index >= 0)
            choose(index);
    });
    // Says that an item was chosen which the box shows already.
    QObject::connect(comboBox, QOverload<int>::of(&QComboBox::activated), context, [=](int index) {
        if (!oneEntry.isSecondSignal())
            choose(index);
    });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QButtonGroup *group)
{
    const RefreshGuard guard(this);
    const OrvCamConfigMapData record{Kind::RadioButtons, nullptr, group};
    if (!group || group->buttons().isEmpty() || !prepare(param, record))
        return 0;
    nameRadioButtons(param, group);
    const QList<QAbstractButton *> buttons = group->buttons();
    for (QAbstractButton *const button : buttons)
        watch(param, button);
    updateRadioButtons(param, group);
    const auto choose = [=](QAbstractButton *button) {
        const std::int64_t value = valueOf(group, button);
        enter({param, button, [=] { return differs(param, value); }, [=] { return param->SetValue(value); }});
    };
    QObject *const context = newContext(record);
    const OneEntry oneEntry;
    const auto toggled = QOverload<QAbstractButton *, bool>::of(&QButtonGroup::buttonToggled);
    QObject::connect(group, toggled, context, [=](QAbstractButton *button, bool checked) {
        if (!checked)
            return;
        oneEntry.begin(context);
        choose(button);
    });
    // Says that a button was chosen which is checked already.
    QObject::connect(group, QOverload<QAbstractButton *>::of(&QButtonGroup::buttonClicked), context,
                     [=](QAbstractButton *button) {
                         if (!oneEntry.isSecondSignal() && button->isChecked())
                             choose(button);
                     });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QTabWidget *tabWidget)
{
    const RefreshGuard guard(this);
    const OrvCamConfigMapData record{Kind::TabWidget, tabWidget, nullptr};
    if (!prepare(param, record))
        return 0;
    nameTabs(param, tabWidget);
    watch(param, tabWidget);
    updateTabWidget(param, tabWidget);
    QObject::connect(tabWidget, &QTabWidget::currentChanged, newContext(record), [=](int index) {
        if (index < 0)
            return;
        const QByteArray text = tabWidget->tabText(index).toUtf8();
        enter({param, tabWidget, [=] { return differs(param, text); },
               [=] { return param->SetValueStr(text.constData()); }});
    });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QCheckBox *checkBox)
{
    return mapButton(param, checkBox, Kind::CheckBox);
}

int OrvCamConfigMapper::mapBooleanParam(OrvGenParam::Boolean *param, QAbstractButton *button)
{
    return mapButton(param, button, Kind::BooleanButton);
}

/** An enumeration is written as 1 or 0. */
template <typename Param>
int OrvCamConfigMapper::mapButton(Param *param, QAbstractButton *button, std::int32_t type)
{
    const RefreshGuard guard(this);
    const OrvCamConfigMapData record{type, button, nullptr};
    if (!prepare(param, record))
        return 0;
    watch(param, button);
    button->setChecked(param->GetValue(nullptr) != 0);
    const auto set = [=](bool checked) {
        enter({param, button, [=] { return differs(param, checked); }, [=] { return param->SetValue(checked); }});
    };
    QObject *const context = newContext(record);
    const OneEntry oneEntry;
    // The program's setChecked() makes no click.
    QObject::connect(button, &QAbstractButton::toggled, context, [=](bool checked) {
        oneEntry.begin(context);
        set(checked);
    });
    QObject::connect(button, &QAbstractButton::clicked, context, [=](bool checked) {
        if (!oneEntry.isSecondSignal())
            set(checked);
    });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapCommandParam(OrvGenParam::Command *param, QPushButton *button, QTimer *timer)
{
    const RefreshGuard guard(this);
    const OrvCamConfigMapData record{Kind::PushButton, button, nullptr};
    if (!prepare(param, record))
        return 0;
    const auto execute = [param, sender = QPointer<QWidget>(button), waiting = QPointer<QTimer>(timer)] {
        const OrvCamErr err = param->Execute();
        if (waiting && sender)
            sender->setEnabled(false);
        if (waiting)
            waiting->start();
        return err;
    };
    QObject *const context = newContext(record);
    if (timer) // without it nobody would enable the button again
        QObject::connect(timer, &QObject::destroyed, context, [param, waiting = QPointer<QWidget>(button)] {
            if (waiting)
                waiting->setEnabled(isUsable(param));
        });
    QObject::connect(button, &QAbstractButton::clicked, context, [=] {
        if (isBarred() || !param->IsWritable())
            return;
        const QString name = nameOf(param);
        const QPointer<QWidget> parent(button);
        const OrvCamErr err = execute();
        if (parent)
            showError(err, parent, name);
    });
    registerAt(param);
    return 1;
}

void OrvCamConfigMapper::addRecord(OrvGenParam::Param *param, const OrvCamConfigMapData &record)
{
    if (!param) {
        setEnabled(record, nullptr, false);
        return;
    }
    m_bindings[nameOf(param)].append(record);
    registerAt(param);
    OnParameterUpdate(param);
}

void OrvCamConfigMapper::unmapParam(OrvGenParam::Param *param, QWidget *widget)
{
    if (!param) {
        if (widget)
            widget->setEnabled(false);
        return;
    }
    const QString name = nameOf(param);
    const Records records = m_bindings.take(name);
    if (records.isEmpty())
        return;
    m_tabs.remove(name);
    // Another object of the name may be the one that is bound.
    if (OrvGenParam::Param *const registered = m_params.take(name))
        registered->UnregisterEvent(this);
    param->UnregisterEvent(this);
    unmapControl(records.first());
}

void OrvCamConfigMapper::unmapControl(const OrvCamConfigMapData &record)
{
    // A spin box may commit what is being typed when it loses the focus.
    const RefreshGuard guard(this);
    m_contexts.remove(controlOf(record));
    clearMarks(record);
    if (QButtonGroup *const group = groupOf(record)) {
        disconnectOwnSignals(group);
        enableButtons(nullptr, group, false);
    } else if (record.control) {
        record.control->setEnabled(false);
        if (record.control)
            disconnectOwnSignals(record.control);
    }
}

void OrvCamConfigMapper::unmapAll()
{
    const auto bindings = std::exchange(m_bindings, {});
    const auto params = std::exchange(m_params, {});
    m_tabs.clear();
    m_dropped.clear();
    m_contexts.clear(); // those of controls that are gone, too
    for (OrvGenParam::Param *const param : params)
        param->UnregisterEvent(this);
    // A field that loses the focus may tell somebody who destroys the mapper.
    const QPointer<QObject> alive(&m_context);
    for (const Records &records : bindings) {
        for (const OrvCamConfigMapData &record : records) {
            if (alive)
                unmapControl(record);
        }
    }
}

QVector<OrvCamConfigMapData> OrvCamConfigMapper::bindings(const QString &feature) const
{
    return m_bindings.value(feature);
}

void OrvCamConfigMapper::OnParameterUpdate(OrvGenParam::Param *param)
{
    if (param && !m_reports.passOn(param))
        show(param);
}

/*
 * Walks a copy and looks at each record again: what hangs on the control's signals may bind and unbind, and destroy the
 * mapper. False when there is no value to show.
 */
bool OrvCamConfigMapper::show(OrvGenParam::Param *param)
{
    const QString name = nameOf(param);
    const Records records = m_bindings.value(name);
    if (records.isEmpty())
        return false;
    const RefreshGuard guard(this);
    const QPointer<QObject> alive(&m_context);
    const auto isBound = [&](const OrvCamConfigMapData &record) {
        return alive && m_bindings.value(name).contains(record);
    };
    const bool isAvailable = param->IsAvailable();
    const bool isShown = isAvailable && param->IsReadable();
    const bool isUsable = isAvailable && param->IsWritable();
    if (isShown)
        ++m_timesShown[name];
    for (const OrvCamConfigMapData &record : records) {
        if (!isShown || !isBound(record))
            continue;
        clearMarks(record);
        refresh(param, record);
    }
    for (const OrvCamConfigMapData &record : records) {
        if (isBound(record))
            setEnabled(record, param, isUsable);
    }
    if (const auto rule = alive ? m_afterShow : nullptr)
        rule(param);
    return isShown;
}

void OrvCamConfigMapper::refresh(OrvGenParam::Param *param, const OrvCamConfigMapData &record)
{
    auto *const number = dynamic_cast<OrvGenParam::Int *>(param);
    auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param);
    const auto converter = [&] { return static_cast<IOrvCamConfigIntConverter *>(record.extra); };
    switch (record.type) {
    case Kind::ComboBox:
        return updateComboBox(choice, qobject_cast<QComboBox *>(record.control));
    case Kind::CheckBox:
        return updateButton(choice, qobject_cast<QCheckBox *>(record.control));
    case Kind::RadioButtons:
        return updateRadioButtons(choice, groupOf(record));
    case Kind::TabWidget:
        return updateTabWidget(choice, qobject_cast<QTabWidget *>(record.control));
    case Kind::BooleanButton:
        return updateButton(dynamic_cast<OrvGenParam::Boolean *>(param),
                            qobject_cast<QAbstractButton *>(record.control));
    case Kind::LineEdit:
        return updateEditBox(number, qobject_cast<QLineEdit *>(record.control));
    case Kind::PlainSpinBox:
        return updateSpinBox(number, qobject_cast<QSpinBox *>(record.control));
    case Kind::SpinBox:
        return updateSpinBox(number, qobject_cast<QtOrvSpinBox *>(record.control));
    case Kind::Slider:
        return updateSlider(number, qobject_cast<QSlider *>(record.control), converter());
    case Kind::SliderSpinBox:
        return updateSliderSpinBox(number, qobject_cast<QtOrvSliderSpinBox *>(record.control), converter());
    default:
        return;
    }
}

/** A radio button is enabled only while its entry can be chosen. */
void OrvCamConfigMapper::setEnabled(const OrvCamConfigMapData &record, OrvGenParam::Param *param, bool enabled)
{
    if (QButtonGroup *const group = groupOf(record))
        enableButtons(dynamic_cast<OrvGenParam::Enum *>(param), group, enabled);
    else if (record.control)
        record.control->setEnabled(enabled);
}

void OrvCamConfigMapper::nameRadioButtons(OrvGenParam::Enum *param, QButtonGroup *group)
{
    const QList<QAbstractButton *> buttons = group->buttons();
    const int entries = param->GetEnumEntriesCount(nullptr);
    for (int i = 0; i < buttons.size(); ++i) {
        QAbstractButton *const button = buttons.at(i);
        OrvGenParam::EnumEntry *const entry = i < entries ? param->GetEnumEntryByIndex(i, nullptr) : nullptr;
        button->setVisible(entry != nullptr);
        button->setProperty(entryValueProperty, QString()); // no value
        if (!entry)
            continue;
        const std::int64_t value = entry->GetValue(nullptr);
        button->setText(nameOf(entry));
        nameButton(button);
        button->setProperty(entryValueProperty, qlonglong(value));
        if (value == toInt(value))
            group->setId(button, int(value));
    }
}

void OrvCamConfigMapper::nameButton(QAbstractButton *button)
{
    const QString group = button->group() ? button->group()->property(groupNameProperty).toString() : QString();
    if (!group.isEmpty())
        button->setAccessibleName(OrvGui::OrvCamConfigMapper::tr("%1: %2").arg(group, button->text()));
}

void OrvCamConfigMapper::nameTabs(OrvGenParam::Enum *param, QTabWidget *tabWidget)
{
    const int tabs = tabWidget->count();
    const int entries = param->GetEnumEntriesCount(nullptr);
    // Intentionally passes over the tab that moves up: every other surplus tab goes, the rest stay as they are.
    for (int i = entries; i < tabs; ++i) {
        if (QWidget *const page = tabWidget->widget(i)) {
            page->hide();
            tabWidget->removeTab(i);
        }
    }
    QHash<QString, int> places;
    for (int i = 0; i < std::min(tabs, entries); ++i) {
        OrvGenParam::EnumEntry *const entry = param->GetEnumEntryByIndex(i, nullptr);
        tabWidget->setTabVisible(i, entry != nullptr);
        tabWidget->setTabEnabled(i, entry != nullptr);
        if (entry) {
            tabWidget->setTabText(i, nameOf(entry));
            places.insert(nameOf(entry), i);
        }
    }
    m_tabs[nameOf(param)] = places;
}

void OrvCamConfigMapper::updateComboBox(OrvGenParam::Enum *param, QComboBox *comboBox)
{
    auto *const model = comboBox ? qobject_cast<QStandardItemModel *>(comboBox->model()) : nullptr;
    if (!param || !model || comboBox->count() == 0)
        return;
    const RefreshGuard guard(this);
    for (int i = 0; i < comboBox->count(); ++i) {
        const QVariant index = comboBox->itemData(i, entryIndexRole);
        OrvGenParam::EnumEntry *const entry = param->GetEnumEntryByIndex(index.isValid() ? index.toInt() : i, nullptr);
        model->item(i, comboBox->modelColumn())->setEnabled(entry && entry->IsAvailable());
    }
    // A value that is not in the list shows as nothing, and in the tool tip.
    const int index = comboBox->findText(QString::fromUtf8(param->GetValueStr(nullptr)));
    noteValue(comboBox, index < 0 ? valueInWords(param) : QString());
    comboBox->setCurrentIndex(index);
}

void OrvCamConfigMapper::updateRadioButtons(OrvGenParam::Enum *param, QButtonGroup *group)
{
    if (!param || !group)
        return;
    const RefreshGuard guard(this);
    QAbstractButton *const button = buttonOf(group, param->GetValue(nullptr));
    const QString unseen = button ? QString() : valueInWords(param);
    const QList<QAbstractButton *> buttons = group->buttons();
    for (QAbstractButton *const other : buttons)
        noteValue(other, unseen);
    if (button)
        button->setChecked(true);
    else
        uncheckAll(group);
    enableButtons(param, group, isUsable(param));
}

void OrvCamConfigMapper::updateTabWidget(OrvGenParam::Enum *param, QTabWidget *tabWidget)
{
    if (!param || !tabWidget)
        return;
    const RefreshGuard guard(this);
    const QPointer<QTabWidget> alive(tabWidget);
    const QHash<QString, int> places = m_tabs[nameOf(param)];
    const int tabs = std::min(tabWidget->count(), param->GetEnumEntriesCount(nullptr));
    const QString shown = QString::fromUtf8(param->GetValueStr(nullptr));
    const int current = places.value(shown, 0);
    const QString unseen = places.contains(shown) ? QString() : valueInWords(param);
    tabWidget->setTabToolTip(current, unseen.isEmpty() ? QString() : ControlWatch::valueText(unseen));
    tabWidget->setCurrentIndex(current);
    for (int i = 0; alive && i < tabs; ++i) {
        OrvGenParam::EnumEntry *const entry = param->GetEnumEntryByIndex(i, nullptr);
        const int place = entry ? places.value(nameOf(entry), -1) : -1;
        if (place >= 0)
            tabWidget->setTabEnabled(place, entry->IsAvailable());
        else if (!entry)
            tabWidget->setTabEnabled(i, false); // a hidden tab would be reached by the cursor keys
    }
}

template <typename Param>
void OrvCamConfigMapper::updateButton(Param *param, QAbstractButton *button)
{
    if (!param || !button)
        return;
    const RefreshGuard guard(this);
    button->setChecked(param->GetValue(nullptr) != 0);
}

void OrvCamConfigMapper::updateEditBox(OrvGenParam::Int *param, QLineEdit *lineEdit)
{
    if (!param || !lineEdit)
        return;
    const RefreshGuard guard(this);
    auto *const validator = qobject_cast<QIntValidator *>(const_cast<QValidator *>(lineEdit->validator()));
    if (validator) {
        const std::int64_t maximum = std::min(param->GetMax(nullptr), m_upperClamp);
        validator->setRange(toInt(param->GetMin(nullptr)), toInt(maximum));
    }
    OrvCamErr err = OrvCamErr_Ok;
    const std::int64_t value = std::min(param->GetValue(&err), m_upperClamp);
    lineEdit->setText(err == OrvCamErr_Ok ? QString::number(value) : QString());
}

OrvCamConfigMapper::IntView OrvCamConfigMapper::viewOf(OrvGenParam::Int *param,
                                                       IOrvCamConfigIntConverter *converter) const
{
    const auto shown = [=](std::int64_t value) { return converter ? converter->ToControl(value, param) : value; };
    OrvCamErr err = OrvCamErr_Ok;
    IntView view;
    view.minimum = toInt(shown(param->GetMin(nullptr)));
    view.maximum = std::max(view.minimum, toInt(std::min(shown(param->GetMax(nullptr)), m_upperClamp)));
    view.step = std::max(1, toInt(shown(param->GetIncrement(nullptr))));
    view.trueValue = shown(param->GetValue(&err));
    view.isKnown = err == OrvCamErr_Ok;
    view.value = std::clamp(toInt(std::min(view.trueValue, m_upperClamp)), view.minimum, view.maximum);
    return view;
}

template <typename Control>
void OrvCamConfigMapper::showInt(OrvGenParam::Int *param, Control *control, IOrvCamConfigIntConverter *converter)
{
    if (!param || !control)
        return;
    const RefreshGuard guard(this);
    const QPointer<Control> alive(control);
    const IntView view = viewOf(param, converter);
    const bool isBeyond = view.isKnown && view.trueValue != view.value;
    noteValue(control, isBeyond ? ControlWatch::numberText(view.trueValue, control) : QString());
    showRange(control, view.minimum, view.maximum, view.value);
    if (alive)
        control->setSingleStep(view.step);
    if (alive)
        showValue(control, view.value);
    if (alive && !view.isKnown)
        showNothing(control);
}

void OrvCamConfigMapper::updateSpinBox(OrvGenParam::Int *param, QtOrvSpinBox *spinBox)
{
    showInt(param, spinBox, nullptr);
}

void OrvCamConfigMapper::updateSpinBox(OrvGenParam::Int *param, QSpinBox *spinBox)
{
    showInt(param, spinBox, nullptr);
}

void OrvCamConfigMapper::updateSlider(OrvGenParam::Int *param, QSlider *slider, IOrvCamConfigIntConverter *converter)
{
    showInt(param, slider, converter);
}

void OrvCamConfigMapper::updateSliderSpinBox(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                                             IOrvCamConfigIntConverter *converter)
{
    showInt(param, spinBox, converter);
}

void OrvCamConfigMapper::showErrorMessage(OrvCamErr err, QWidget *parent, OrvGenParam::Param *param)
{
    showError(err, parent, param ? nameOf(param) : QString());
}

void OrvCamConfigMapper::resizeVerticalSlider(QtOrvSpinBox *spinBox)
{
    const QSize field = fieldSize(spinBox);
    spinBox->resizeSlider(field.height(), field.width());
}

void OrvCamConfigMapper::resizeHorizontalSlider(QtOrvSpinBox *spinBox)
{
    const QSize field = fieldSize(spinBox);
    spinBox->resizeSlider(field.width(), field.height());
}

} // namespace OrvGui
