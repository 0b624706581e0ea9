#include "monitor/VTUploaderMainWIndow.h"

#include <QScrollBar>
#include <QShortcut>

#include "engine/UploadThread.h"
#include "monitor/MonitorText.h"
#include "monitor/WhyNotSent.h"
#include "text/AboutWindow.h"
#include "text/MainMenuBar.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "version.h"
#include "widgets/Anchors.h"
#include "widgets/Captions.h"
#include "widgets/Mnemonics.h"
#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;

// Of what is below the menu bar.
constexpr QSize DesignSize{650, 450};
constexpr QSize SmallestSize{600, 216};
constexpr QSize LargestSize{1120, 32000};
constexpr int StatusPeriodMs = 4000;
constexpr int StripPeriodMs = 400;
constexpr int NoticeMs = 6000;

VTUploaderMainWIndow::VTUploaderMainWIndow(MainWindowCommands commands, QWidget* parent)
    : QMainWindow(parent),
      VersionChecker(updateExchange(), commands.updateEndpoint),
      m_commands(std::move(commands)),
      m_updateCheck("update-check", nullptr),
      m_model(new TaskListModel(this)),
      m_reload("task-reload", nullptr) {
  setObjectName(u"VTUploaderMainWIndow"_s);
  setWindowTitle(QString::fromUtf8(AppDisplayName));
  setWindowIcon(Pictures::programIcon());
  buildMenus();
  setCentralWidget(new QWidget(this));
  centralWidget()->resize(DesignSize);
  buildControls();
  buildKeys();
  new WhyNotSent(TaskList, m_model);  // the list owns it
  connectControls();
  TaskList_Change();
  StripRefresher_Action();
  StatusRefresher->start(StatusPeriodMs);
  StripRefresher->start(StripPeriodMs);
}

void VTUploaderMainWIndow::buildMenus() {
  setMenuBar(m_menus = new MainMenuBar(this));
  m_menus->ensurePolished();
  // Where the desktop shows the menus in a place of its own the window has no bar.
  const QSize bar(0, m_menus->isNativeMenuBar() ? 0 : m_menus->heightForWidth(DesignSize.width()));
  setMinimumSize(SmallestSize + bar);
  setMaximumSize(LargestSize + bar);
  resize(DesignSize + bar);
}

void VTUploaderMainWIndow::buildControls() {
  QWidget* const ground = centralWidget();
  auto* const anchors = new Anchors(ground, DesignSize);
  const auto place = [anchors](QWidget* control, const QString& name, const QString& spoken, QRect at, Edges edges) {
    control->setObjectName(name);
    control->setAccessibleName(spoken);
    anchors->place(control, at, edges);
  };
  Mnemonics letters;
  for (const QAction* const menu : m_menus->actions()) letters.reserve(menu->text());
  const auto button = [&](const QString& name, const QString& caption, int left, Edge side) {
    auto* const made = new QPushButton(ground);
    place(made, name, caption, {left, 396, 80, 20}, side | Edge::Bottom);
    setFittedCaption(*made, letters.mark(caption));
    return made;
  };
  const Edges top = Edge::Left | Edge::Top | Edge::Right;
  const QString version = u"ver %1.%2.%3"_s.arg(MajorVersion).arg(MinorVersion).arg(BugVersion);

  place(Banner = new HeaderPicture(ground), u"Banner"_s, windowTitle(), {20, 20, 610, 70}, top);
  place(VersionLabel = new QLabel(version, ground), u"VersionLabel"_s, version, {92, 72, 530, 18}, top);
  QPalette onBanner = VersionLabel->palette();
  onBanner.setColor(QPalette::WindowText, HeaderPicture::TextColor);
  VersionLabel->setPalette(onBanner);
  place(HelpButton = new PictureButton(u"help"_s, ground), u"HelpButton"_s, MonitorText::klHelp(), {578, 40, 32, 32},
        Edge::Top | Edge::Right);
  place(TaskList = new TaskListView(m_model, ground), u"TaskList"_s, MonitorText::klTasks(), {20, 102, 610, 282},
        top | Edge::Bottom);
  NewButton = button(u"NewButton"_s, VTULocalization::klNew(), 20, Edge::Left);
  EditButton = button(u"EditButton"_s, VTULocalization::klEdit(), 112, Edge::Left);
  DuplicateButton = button(u"DuplicateButton"_s, VTULocalization::klDuplicate(), 204, Edge::Left);
  RemoveButton = button(u"RemoveButton"_s, VTULocalization::klRemove(), 296, Edge::Left);
  AdminButton = button(u"AdminButton"_s, VTULocalization::klAdmin(), 458, Edge::Right);
  ShowLogbutton = button(u"ShowLogbutton"_s, VTULocalization::klShowLog(), 550, Edge::Right);
  place(BottomShadingRect = new ShadedStrip(ground), u"BottomShadingRect"_s, {}, {0, 428, 650, 22},
        Edge::Left | Edge::Right | Edge::Bottom);
  HelpButton->setToolTip(MonitorText::klHelp());

  StatusRefresher = new QTimer(this);
  StatusRefresher->setObjectName(u"StatusRefresher"_s);
  StripRefresher = new QTimer(this);
  StripRefresher->setObjectName(u"StripRefresher"_s);
}

void VTUploaderMainWIndow::buildKeys() {
  QWidget* const order[] = {HelpButton,   TaskList,    NewButton,     EditButton,       DuplicateButton,
                            RemoveButton, AdminButton, ShowLogbutton, BottomShadingRect};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
  TaskList->setFocus();

  const auto onList = [this](Qt::Key key, QPushButton* button) {
    connect(new QShortcut(key, TaskList, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, button,
            &QPushButton::click);
  };
  onList(Qt::Key_Delete, RemoveButton);
  onList(Qt::Key_Return, EditButton);
  onList(Qt::Key_Enter, EditButton);
  connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, this,
          &VTUploaderMainWIndow::updateTaskStatusAndCount);
}

void VTUploaderMainWIndow::connectControls() {
  using Self = VTUploaderMainWIndow;
  connect(StatusRefresher, &QTimer::timeout, this, &Self::StatusRefresher_Action);
  connect(StripRefresher, &QTimer::timeout, this, &Self::StripRefresher_Action);
  connect(TaskList->selectionModel(), &QItemSelectionModel::selectionChanged, this, &Self::TaskList_Change);
  connect(TaskList, &QTreeView::doubleClicked, this, &Self::EditButton_Action);
  connect(NewButton, &QPushButton::clicked, this, &Self::NewButton_Action);
  connect(EditButton, &QPushButton::clicked, this, &Self::EditButton_Action);
  connect(DuplicateButton, &QPushButton::clicked, this, &Self::DuplicateButton_Action);
  connect(RemoveButton, &QPushButton::clicked, this, &Self::RemoveButton_Action);
  connect(AdminButton, &QPushButton::clicked, this, &Self::AdminButton_Action);
  connect(ShowLogbutton, &QPushButton::clicked, this, &Self::ShowLogbutton_Action);
  connect(HelpButton, &QAbstractButton::clicked, this, &Self::HelpButton_MouseUp);
  connect(BottomShadingRect, &ShadedStrip::detailsWanted, this, &Self::BottomShadingRect_DetailsWanted);
  connect(m_menus->FileAbout, &QAction::triggered, this, [this] { AboutWindow::_FileAbout_Action(this); });
  connect(m_menus->FileCheckForUpdates, &QAction::triggered, this, &Self::_FileCheckForUpdates_Action);
  VersionChecker.NewVersionAvailable = [this](const QString& version, const QString& url) {
    VersionChecker_NewVersionAvailable(version, url);
  };
  connect(m_menus->FileQuit, &QAction::triggered, this, &QWidget::close);
}

void VTUploaderMainWIndow::ListTasks() {
  const int scrolled = TaskList->verticalScrollBar()->value();
  m_model->setTasks(UploaderTask::allTasks(), UploadThread::Enabled.load());
  TaskList->doItemsLayout();
  TaskList->verticalScrollBar()->setValue(scrolled);
  const bool none = m_phase != StartPhase::Connecting && m_model->rowCount({}) == 0;
  TaskList->setNote(none ? fillPlaceholders(MonitorText::klNoTasks(), {VTULocalization::klNew()}) : QString());
  TaskList_Change();  // the view drops its selection without a word when the rows are replaced
}

void VTUploaderMainWIndow::updateTaskStatusAndCount() { m_model->refresh(UploadThread::Enabled.load()); }

void VTUploaderMainWIndow::StatusRefresher_Action() {
  updateTaskStatusAndCount();
  if (UploadThread::Enabled.load() && !UploadThread::ProcessingNow()) UploadThread::Start();
}

TaskPointer VTUploaderMainWIndow::selectedTask() const { return m_model->task(TaskList->ListIndex()); }

void VTUploaderMainWIndow::TaskList_Change() {
  const bool selected = TaskList->ListIndex() > -1;
  for (QPushButton* const button : {EditButton, DuplicateButton, RemoveButton}) button->setEnabled(selected);
}

void VTUploaderMainWIndow::say(const QString& notice) {
  m_notice = notice;
  m_noticeEnd.setRemainingTime(NoticeMs);
  StripRefresher_Action();
}

StripInput VTUploaderMainWIndow::stripInput() {
  if (m_phase == StartPhase::Checking && !m_model->hasUnevaluated()) m_phase = StartPhase::Running;
  StripInput input;
  if (!m_noticeEnd.hasExpired()) input.notice = m_notice;
  input.activity = engineActivity();
  input.problems = Problems::present();
  input.faultyTasks = m_model->faultyTasks();
  input.phase = m_phase;
  input.held = !UploadThread::Enabled.load();
  input.now = QDateTime::currentDateTime();
  input.wellSince = m_wellSince.update(input);
  return input;
}

void VTUploaderMainWIndow::StripRefresher_Action() {
  BottomShadingRect->setLine(composeStrip(stripInput()));
  loadRestoredTasksWhenIdle();
}
