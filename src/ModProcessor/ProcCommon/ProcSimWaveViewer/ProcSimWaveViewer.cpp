#include "ProcSimWaveViewer.h"

#include "DialogParent.h"
#include "HelpRef.h"
#include "MyLongWork.h"
#include "ProcSimVcd.h"
#include "ProcSimWaveTree.h"
#include "ProcSimWavesWidget.h"
#include "SafeFile.h"
#include "SchemeIcons.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QSplitter>
#include <QStyle>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>

namespace nsProc {

namespace {

const int addrWidth = 112; ///< of the field for a port, pixels: a name of usual length

} // namespace

ProcSimWaveViewer::ProcSimWaveViewer(double clkFreq, QWidget* parent)
    : ProcSimWaveViewer(std::make_shared<ProcSimWaveData>(), clkFreq, parent)
{
}

ProcSimWaveViewer::ProcSimWaveViewer(std::shared_ptr<ProcSimWaveData> data, double clkFreq, QWidget* parent)
    : QWidget(parent)
    , m_data(std::move(data))
    , m_clkFreq(clkFreq)
{
    setObjectName(QStringLiteral("procSimWaveViewer"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeTools());
    layout->addWidget(makePanes(), 1);
    connect(m_add, &QAbstractButton::clicked, this, &ProcSimWaveViewer::addWave);
    connect(m_removeAll, &QAbstractButton::clicked, this, &ProcSimWaveViewer::clear);
    connect(m_save, &QAbstractButton::clicked, this, &ProcSimWaveViewer::save);
    connect(m_zoomIn, &QAbstractButton::clicked, m_wavesWidget, &ProcSimWavesWidget::zoomIn);
    connect(m_zoomOut, &QAbstractButton::clicked, m_wavesWidget, &ProcSimWavesWidget::zoomOut);
    connect(m_fit, &QAbstractButton::clicked, m_wavesWidget, &ProcSimWavesWidget::fit);
    connect(m_end, &QAbstractButton::clicked, m_wavesWidget, &ProcSimWavesWidget::showEnd);
    connect(m_unit, QOverload<int>::of(&QComboBox::currentIndexChanged), m_wavesWidget, [this](int index) {
        m_wavesWidget->setSeconds(index == 1);
        showMoment(-1);
    });
    connect(m_tree, &ProcSimWaveTree::removeRequested, this, &ProcSimWaveViewer::removeAddrChannel);
    connect(m_wavesWidget, &ProcSimWavesWidget::markerChanged, m_tree, &ProcSimWaveTree::showValues);
    connect(m_wavesWidget, &ProcSimWavesWidget::markerChanged, this, [this] { showMoment(-1); });
    connect(m_wavesWidget, &ProcSimWavesWidget::pointed, this, &ProcSimWaveViewer::showMoment);
    connect(m_wavesWidget, &ProcSimWavesWidget::waveClicked, m_tree, &ProcSimWaveTree::selectWave);
    connect(m_wavesWidget, &ProcSimWavesWidget::rowsWheeled, this, [this](QWheelEvent* event) {
        QScrollBar* rows = m_tree->verticalScrollBar();
        rows->setValue(rows->value() - event->angleDelta().y() * rows->singleStep() * 3 / 120);
    });
    setBase(m_base);
    HelpRef::setWhatsThis(this,
                          tr("The values that pass through ports against simulated time. A port is recorded from the "
                             "moment at which you add it."),
                          QStringLiteral("pageId://simulatorWaves"));
    HelpRef::setWhatsThis(m_addr, tr("The port to watch: a constant of the program, or a number in the present base."),
                          QStringLiteral("pageId://simulatorWaves#tools"));
    HelpRef::setWhatsThis(m_access,
                          tr("Whether to watch what the program reads from the port, or what it writes to it."),
                          QStringLiteral("pageId://simulatorWaves#tools"));
    HelpRef::setWhatsThis(m_unit, tr("The unit of the time axis. Seconds need the clock frequency of the processor."),
                          QStringLiteral("pageId://simulatorWaves#tools"));
    HelpRef::setWhatsThis(m_tree,
                          tr("The ports that are watched. Unfold one to see its eight bits; Delete removes it. The "
                             "value is the one at the marker, or the last one."),
                          QStringLiteral("pageId://simulatorWaves#list"));
    HelpRef::setWhatsThis(m_wavesWidget,
                          tr("A value is drawn from its access to the next one. A click sets the marker; Ctrl and the "
                             "wheel show a longer or a shorter time."),
                          QStringLiteral("pageId://simulatorWaves#waves"));
    setupOrder();
    updateButtons();
    showMoment(-1);
}

ProcSimWaveViewer::~ProcSimWaveViewer()
{
    // The rows are deleted before the data that they show.
    m_tree->clear();
}

QSize ProcSimWaveViewer::sizeHint() const
{
    return {800, 200};
}

QAbstractButton* ProcSimWaveViewer::addButton(QWidget* row, const QString& text, const QString& icon,
                                              const QString& name, const QString& toolTip)
{
    QAbstractButton* button = nullptr;
    if (text.isEmpty()) {
        auto* tool = new QToolButton(row);
        tool->setFocusPolicy(Qt::StrongFocus);
        tool->setAutoRaise(true);
        button = tool;
    } else {
        auto* push = new QPushButton(text, row);
        push->setAutoDefault(false);
        button = push;
    }
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setIconSize({16, 16});
    if (!icon.isEmpty())
        button->setIcon(SchemeIcons::of(QStringLiteral(":/ProcSim/img/%1.png").arg(icon)));
    row->layout()->addWidget(button);
    return button;
}

/// A group of tools in a line of its own.
QWidget* ProcSimWaveViewer::makeToolGroup(QWidget* parent)
{
    auto* group = new QWidget(parent);
    auto* layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    parent->layout()->addWidget(group);
    return group;
}

QWidget* ProcSimWaveViewer::makeTools()
{
    auto* tools = new QWidget(this);
    m_toolLayout = new QBoxLayout(QBoxLayout::LeftToRight, tools);
    m_toolLayout->setContentsMargins(8, 4, 8, 4);
    m_toolLayout->setSpacing(4);
    m_portTools = makeToolGroup(tools);
    m_viewTools = makeToolGroup(tools);
    m_toolLayout->setStretchFactor(m_portTools, 1);
    addPortTools();
    addViewTools();
    // The width of the dock decides whether the groups are in one line; the groups must not limit that width.
    tools->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return tools;
}

void ProcSimWaveViewer::addPortTools()
{
    QWidget* row = m_portTools;
    auto* layout = static_cast<QHBoxLayout*>(row->layout());
    auto* title = new QLabel(tr("&Port address"), row);
    m_addr = new QLineEdit(row);
    m_addr->setObjectName(QStringLiteral("procSimWaveAddr"));
    m_addr->setToolTip(tr("Address of the port whose values are to be shown: a constant of the program, such as "
                          "PORT_LEDS, or a number in the present number base"));
    m_addr->setFixedWidth(addrWidth);
    title->setBuddy(m_addr);
    connect(m_addr, &QLineEdit::returnPressed, this, [this] { addWave(); });
    connect(m_addr, &QLineEdit::textEdited, this, [this] {
        showProblem(false);
        say({});
    });
    m_access = new QComboBox(row);
    m_access->setObjectName(QStringLiteral("procSimWaveAccess"));
    m_access->setToolTip(tr("Show what the program reads from the port, or what it writes to it"));
    m_access->addItems({tr("Read"), tr("Write")});
    layout->addWidget(title);
    layout->addWidget(m_addr);
    layout->addWidget(m_access);
    m_add = addButton(row, tr("&Add"), QStringLiteral("waveAdd"), QStringLiteral("procSimWaveAdd"),
                      tr("Watch this port from now on"));
    m_removeAll =
        addButton(row, tr("&Remove all"), {}, QStringLiteral("procSimWaveRemoveAll"), tr("Watch no port any longer"));
    layout->addSpacing(8);
    m_message = new QLabel(row);
    m_message->setObjectName(QStringLiteral("statusBarTitle"));
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(m_message, 1);
}

void ProcSimWaveViewer::addViewTools()
{
    QWidget* row = m_viewTools;
    auto* layout = static_cast<QHBoxLayout*>(row->layout());
    m_unit = new QComboBox(row);
    m_unit->setObjectName(QStringLiteral("procSimWaveUnit"));
    m_unit->setToolTip(m_clkFreq > 0 ? tr("Unit of the time axis")
                                     : tr("Unit of the time axis; seconds need the clock rate of the processor"));
    m_unit->addItems({tr("Clocks"), tr("Seconds")});
    m_unit->setEnabled(m_clkFreq > 0);
    layout->addWidget(m_unit);
    m_zoomOut = addButton(row, {}, QStringLiteral("waveZoomOut"), QStringLiteral("procSimWaveZoomOut"),
                          tr("Show a longer time (Ctrl with the wheel, or the minus key)"));
    m_zoomIn = addButton(row, {}, QStringLiteral("waveZoomIn"), QStringLiteral("procSimWaveZoomIn"),
                         tr("Show a shorter time (Ctrl with the wheel, or the plus key)"));
    m_fit = addButton(row, {}, QStringLiteral("waveZoomFit"), QStringLiteral("procSimWaveZoomFit"),
                      tr("Show all of the time, also as it goes on"));
    m_end = addButton(row, tr("&Now"), {}, QStringLiteral("procSimWaveEnd"),
                      tr("Show the present time and follow it (End key)"));
    m_save = addButton(row, tr("&Save..."), QStringLiteral("waveSave"), QStringLiteral("procSimWaveSave"),
                       tr("Save the values as a value change dump (VCD), which other wave viewers open"));
    layout->addStretch();
}

/// In a narrow dock the tools stand in two lines.
void ProcSimWaveViewer::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const QMargins margins = m_toolLayout->contentsMargins();
    const int ports = m_portTools->minimumSizeHint().width();
    const int views = m_viewTools->minimumSizeHint().width();
    const int space = margins.left() + margins.right();
    m_toolLayout->parentWidget()->setMinimumWidth(qMax(ports, views) + space);
    const bool fits = ports + views + m_toolLayout->spacing() + space <= width();
    m_toolLayout->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

/// The tree and the waves, each with a line below it, so that their rows end at the same height.
QWidget* ProcSimWaveViewer::makePanes()
{
    auto* splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setChildrenCollapsible(false);
    auto* left = new QWidget(splitter);
    auto* right = new QWidget(splitter);
    m_wavesWidget = new ProcSimWavesWidget(m_data.get(), m_clkFreq, right);
    m_tree = new ProcSimWaveTree(m_wavesWidget, left);
    m_scrollBar = new QScrollBar(Qt::Horizontal, right);
    m_scrollBar->setObjectName(QStringLiteral("procSimWaveScrollBar"));
    m_scrollBar->setToolTip(tr("Scrolls time; at its end, the waves follow the present time"));
    m_wavesWidget->setScrollBar(m_scrollBar);
    m_moment = new QLabel(left);
    m_moment->setObjectName(QStringLiteral("procSimWaveMoment"));
    m_moment->setToolTip(tr("Time at the pointer, and how far it is from the marker; the present time elsewhere"));
    m_moment->setContentsMargins(8, 0, 0, 0);
    m_moment->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    const int lineHeight = qMax(m_scrollBar->sizeHint().height(), m_moment->sizeHint().height());
    m_moment->setFixedHeight(lineHeight);
    m_scrollBar->setFixedHeight(lineHeight);
    for (QWidget* pane : {left, right}) {
        auto* layout = new QVBoxLayout(pane);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->addWidget(pane == left ? static_cast<QWidget*>(m_tree) : m_wavesWidget, 1);
        layout->addWidget(pane == left ? static_cast<QWidget*>(m_moment) : m_scrollBar);
    }
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    // Names of usual length are to be seen in full.
    splitter->setSizes({280, 800});
    return splitter;
}

void ProcSimWaveViewer::setupOrder()
{
    QWidget* order[] = {m_addr,   m_access, m_add, m_removeAll, m_unit, m_zoomOut,
                        m_zoomIn, m_fit,    m_end, m_save,      m_tree, m_wavesWidget};
    for (size_t index = 1; index < std::size(order); ++index)
        QWidget::setTabOrder(order[index - 1], order[index]);
}

void ProcSimWaveViewer::updateButtons()
{
    const bool some = !m_data->isEmpty();
    for (QAbstractButton* button : {m_removeAll, m_zoomOut, m_zoomIn, m_fit, m_end, m_save})
        button->setEnabled(some);
}

void ProcSimWaveViewer::say(const QString& text)
{
    m_message->setText(text);
    m_message->setToolTip(text);
}

void ProcSimWaveViewer::setBase(int base)
{
    QString name;
    const int addr = enteredAddr(&name);
    m_base = base;
    if (addr >= 0 && name.isEmpty())
        m_addr->setText(QStringLiteral("%1").arg(addr, 2, base, QLatin1Char('0')).toUpper());
    m_wavesWidget->setBase(base);
    m_tree->setBase(base);
    m_tree->showValues(m_wavesWidget->marker());
    showProblem(false);
    say({});
}

void ProcSimWaveViewer::setPortNames(NameOf nameOf, AddrOf addrOf)
{
    m_nameOf = std::move(nameOf);
    m_addrOf = std::move(addrOf);
    updatePortNames();
}

void ProcSimWaveViewer::updatePortNames()
{
    for (const auto& channel : m_data->channels()) {
        // A name that is still valid is kept, as the user may have chosen it among several.
        if (m_addrOf && !channel->name.isEmpty() && m_addrOf(channel->name) == channel->addr)
            continue;
        channel->name = m_nameOf ? m_nameOf(channel->addr, channel->access) : QString();
    }
    m_tree->setBase(m_base);
}

int ProcSimWaveViewer::enteredAddr(QString* name) const
{
    const QString text = m_addr->text().trimmed();
    // A constant may look like a number; a number can always be written with a zero in front.
    int addr = m_addrOf ? m_addrOf(text) : -1;
    if (addr >= 0) {
        *name = text;
        return addr;
    }
    name->clear();
    bool ok = false;
    addr = text.toInt(&ok, m_base);
    return ok && addr >= 0 && addr <= 0xFF ? addr : -1;
}

void ProcSimWaveViewer::refuseAddr()
{
    const QString text = m_addr->text().trimmed();
    const QString first = m_wavesWidget->valueText(0);
    const QString last = m_wavesWidget->valueText(0xFF);
    if (text.isEmpty()) {
        say(tr("Enter an address from %1 to %2, or a constant.").arg(first, last));
    } else {
        say(tr("No address from %1 to %2: \"%3\"").arg(first, last, text));
        // There is no room for the whole of it beside the tools.
        m_message->setToolTip(
            tr("\"%3\" is neither an address from %1 to %2 nor a constant with such a value.").arg(first, last, text));
    }
    showProblem(true);
    m_addr->setFocus();
    m_addr->selectAll();
}

/// Draws the frame of the address field in the colour of an error.
void ProcSimWaveViewer::showProblem(bool isProblem)
{
    if (m_addr->property("problem").toBool() == isProblem)
        return;
    m_addr->setProperty("problem", isProblem);
    m_addr->style()->unpolish(m_addr);
    m_addr->style()->polish(m_addr);
}

void ProcSimWaveViewer::clearValues()
{
    m_data->clearValues();
    refresh();
}

void ProcSimWaveViewer::clearAddrChannelValues(sAddrChannel_t* channel)
{
    m_data->clearValues(channel);
    refresh();
}

void ProcSimWaveViewer::addWave(bool)
{
    QString name;
    const int addr = enteredAddr(&name);
    if (addr < 0) {
        refuseAddr();
        return;
    }
    showProblem(false);
    const auto access = m_access->currentIndex() == 0 ? ProcSimWaveData::eAccessRd : ProcSimWaveData::eAccessWr;
    addAddrChannel(addr, access, -1, name);
    m_addr->selectAll();
}

void ProcSimWaveViewer::addValue(int addr, eAccessType_t access, const QString& name, int value, qint64 clock)
{
    sAddrChannel_t* channel = m_data->channel(addr, access);
    if (channel == nullptr)
        return;
    if (channel->name.isEmpty() && !name.isEmpty()) {
        channel->name = name;
        m_tree->setBase(m_base);
    }
    m_data->addValue(addr, access, value, clock);
}

bool ProcSimWaveViewer::addAddrChannel(int addr, eAccessType_t access, int initValue, const QString& name)
{
    const bool isNamed = !name.isEmpty() || !m_nameOf;
    sAddrChannel_t* channel = m_data->addChannel(addr, access, isNamed ? name : m_nameOf(addr, access));
    if (channel == nullptr) {
        const sAddrChannel_t* present = m_data->channel(addr, access);
        m_tree->selectChannel(present);
        say(tr("\"%1\" is shown already.").arg(ProcSimWaveTree::channelText(present, m_base)));
        return false;
    }
    if (initValue >= 0)
        m_data->addValue(addr, access, initValue, m_data->clock());
    const auto add = [this, channel](int kind, int maximum, int bit) {
        m_waves.push_back(std::make_unique<sWave_t>());
        sWave_t* wave = m_waves.back().get();
        wave->index = m_waveCount++;
        wave->kind = kind;
        wave->maximum = maximum;
        wave->bit = bit;
        wave->channel = channel;
        m_tree->addWave(wave);
    };
    add(eWaveNumeric, 255, 0);
    for (int bit = 7; bit >= 0; --bit)
        add(eWaveBit, 1, bit);
    m_tree->selectChannel(channel);
    say({});
    updateButtons();
    refresh();
    return true;
}

void ProcSimWaveViewer::removeAddrChannel(sAddrChannel_t* channel)
{
    m_tree->removeChannel(channel);
    m_waves.erase(std::remove_if(m_waves.begin(), m_waves.end(),
                                 [channel](const auto& wave) { return wave->channel == channel; }),
                  m_waves.end());
    m_data->removeChannel(channel);
    if (m_data->isEmpty())
        m_wavesWidget->clear();
    say({});
    updateButtons();
    refresh();
}

void ProcSimWaveViewer::clear(bool)
{
    m_tree->clear();
    m_wavesWidget->clear();
    m_waves.clear();
    m_data->clear();
    say({});
    updateButtons();
    refresh();
}

void ProcSimWaveViewer::setClock(qint64 clock)
{
    m_data->setClock(clock);
}

void ProcSimWaveViewer::refresh()
{
    const bool changed = m_data->changes() != m_shownChanges;
    if (!changed && m_data->clock() == m_shownClock)
        return;
    m_shownChanges = m_data->changes();
    m_shownClock = m_data->clock();
    m_stale = !isVisible();
    if (!m_stale) {
        m_wavesWidget->refresh();
        m_tree->showValues(m_wavesWidget->marker());
        if (!m_wavesWidget->underMouse())
            showMoment(-1);
    }
    if (changed)
        emit contentChanged(this);
}

void ProcSimWaveViewer::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_stale)
        return;
    m_stale = false;
    m_wavesWidget->refresh();
    m_tree->showValues(m_wavesWidget->marker());
    showMoment(-1);
}

/// @param pointed clock count under the pointer, -1 for none
void ProcSimWaveViewer::showMoment(qint64 pointed)
{
    const ProcSimWaveTime& time = m_wavesWidget->time();
    const qint64 marker = m_wavesWidget->marker();
    if (m_data->isEmpty())
        m_moment->clear();
    else if (pointed >= 0 && marker >= 0)
        m_moment->setText(tr("%1, %2%3 from marker")
                              .arg(time.text(pointed), pointed < marker ? QStringLiteral("-") : QStringLiteral("+"),
                                   time.text(qAbs(pointed - marker))));
    else if (pointed >= 0)
        m_moment->setText(tr("At %1").arg(time.unitText(pointed)));
    else if (marker >= 0)
        m_moment->setText(tr("Marker at %1").arg(time.unitText(marker)));
    else
        m_moment->setText(tr("Now %1").arg(time.unitText(m_data->clock())));
}

QString ProcSimWaveViewer::saveVcd(const QString& path, bool* cancelled)
{
    // The simulator, and this viewer with it, may be removed by what is handled meanwhile.
    const QPointer<ProcSimWaveViewer> self(this);
    const std::shared_ptr<ProcSimWaveData> data = m_data;
    const unsigned changes = data->changes();
    MyLongWork work(
        tr("Saving"),
        [self](QWidget* bar) {
            if (self)
                self->m_viewTools->layout()->addWidget(bar);
        },
        [](QWidget* bar) { bar->setParent(nullptr); });
    SafeFile file(path);
    const bool written = file.open() && ProcSimVcd::write(&file, *data, m_clkFreq, [&](int percent) {
                             return work.goesOn(tr("%1 %").arg(percent)) && data->changes() == changes;
                         });
    work.commits();
    const bool isDone = written && file.commit();
    if (cancelled != nullptr)
        *cancelled = work.isCancelled();
    if (isDone || work.isCancelled())
        return {};
    return data->changes() != changes ? tr("The simulation went on while its waves were saved.") : file.errorString();
}

void ProcSimWaveViewer::save()
{
    // The dialog handles events: the simulator may be deleted while it is open, and this viewer with it.
    const QPointer<ProcSimWaveViewer> self(this);
    QFileDialog dialog(DialogParent::get(), tr("Save waves"), m_lastPath);
    dialog.setObjectName(QStringLiteral("procSimWaveSaveDialog"));
    HelpRef::set(&dialog, QStringLiteral("pageId://simulatorWaves"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters({tr("Value change dumps (*.vcd)"), tr("All files (*)")});
    dialog.setDefaultSuffix(QStringLiteral("vcd"));
    const bool accepted = dialog.exec() == QDialog::Accepted && self != nullptr;
    if (!accepted || dialog.selectedFiles().isEmpty())
        return;
    const QString path = dialog.selectedFiles().constFirst();
    bool cancelled = false;
    const QString failure = saveVcd(path, &cancelled);
    if (self == nullptr)
        return;
    if (cancelled) {
        say(tr("Cancelled: \"%1\" is as it was.").arg(QFileInfo(path).fileName()));
    } else if (failure.isEmpty()) {
        m_lastPath = path;
        say(tr("Saved as \"%1\".").arg(QFileInfo(path).fileName()));
    } else {
        QMessageBox::warning(DialogParent::get(), tr("Save waves"),
                             tr("The file \"%1\" cannot be written.\n%2").arg(path, failure));
    }
}

} // namespace nsProc
