#include "monitor/WhyNotSent.h"

#include <QDialogButtonBox>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

#include "engine/UploadThread.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"
#include "widgets/Messages.h"
#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

constexpr int LimitMs = 2000;
constexpr qsizetype LongestName = 80;
constexpr int ToneRole = Qt::UserRole;

WhyNotSentWindow::WhyNotSentWindow(const TaskPointer& task, const FolderItem& file, QWidget* parent)
    : QDialog(parent), m_look("why-not-sent", nullptr) {
  setObjectName(u"WhyNotSentWindow"_s);
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(klWhyNotSent());
  resize(520, 420);
  auto* const column = new QVBoxLayout(this);
  const auto line = [&](const QString& name, const QString& text) {
    auto* const label = new QLabel(text, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    column->addWidget(label);
    return label;
  };
  Head = line(u"Head"_s,
              fillPlaceholders(klWhyHead(), {onOneLine(file.Name(), LongestName), onOneLine(task->Name, LongestName)}));
  QFont bold = Head->font();
  bold.setBold(true);
  Head->setFont(bold);
  WhyVerdict = line(u"WhyVerdict"_s, klWhyLooking());
  WhyAnswers = new QListWidget(this);
  WhyAnswers->setObjectName(u"WhyAnswers"_s);
  WhyAnswers->setAccessibleName(klWhyAnswers());
  WhyAnswers->setWordWrap(true);
  WhyAnswers->setIconSize({16, 16});
  WhyAnswers->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  WhyAnswers->setSpacing(2);
  column->addWidget(WhyAnswers);
  auto* const buttons = new QDialogButtonBox(this);
  QPushButton* const close = buttons->addButton(klWhyClose(), QDialogButtonBox::RejectRole);
  close->setObjectName(u"CloseButton"_s);
  close->setAccessibleName(klWhyClose());
  close->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);

  m_look.run<FileExplanation>(
      LimitMs, [task, file](const auto&) { return explainFile(*task, file); },
      [this, task](const FileExplanation& explanation) {
        fill(whyAnswer(explanation, *task, Problems::present(), UploadThread::Enabled.load()));
      },
      [this] { WhyVerdict->setText(klWhySlow()); });
}

void WhyNotSentWindow::fill(const WhyAnswer& answer) {
  WhyVerdict->setText(answer.verdict);
  WhyAnswers->clear();
  for (const WhyLine& line : answer.lines) {
    auto* const item = new QListWidgetItem(line.text, WhyAnswers);
    item->setData(ToneRole, static_cast<int>(line.tone));
    item->setToolTip(plainToolTip(line.text));  // the toolkit cuts some lines without blanks instead of breaking them
    QString spoken = line.text;
    switch (line.tone) {
      case WhyLine::Tone::Good:
        item->setIcon(Pictures::load(u"up_status_check"_s, devicePixelRatioF(), {16, 16}));
        spoken.prepend(klWhyYes() + u": "_s);
        break;
      case WhyLine::Tone::KeepsBack:
        item->setIcon(Pictures::load(u"up_status_fail"_s, devicePixelRatioF(), {16, 16}));
        spoken.prepend(klWhyNo() + u": "_s);
        break;
      case WhyLine::Tone::Note:
        item->setIcon(Pictures::load(u"up_status_off"_s, devicePixelRatioF(), {16, 16}));
        break;
    }
    item->setData(Qt::AccessibleTextRole, spoken);
  }
}

WhyNotSent::WhyNotSent(QTreeView* list, const TaskListModel* model)
    : QObject(list), m_list(list), m_model(model), m_chooser(list->window()) {
  list->viewport()->setAcceptDrops(true);
  list->viewport()->installEventFilter(this);
  list->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list, &QWidget::customContextMenuRequested, this, &WhyNotSent::showMenu);
}

TaskPointer WhyNotSent::taskAt(QPoint place) const { return m_model->task(m_list->indexAt(place).row()); }

bool WhyNotSent::eventFilter(QObject* watched, QEvent* event) {
  const bool moves = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
  if (!moves && event->type() != QEvent::Drop) return QObject::eventFilter(watched, event);
  auto* const drag = static_cast<QDropEvent*>(event);
  const TaskPointer task = taskAt(drag->position().toPoint());
  if (!drag->mimeData()->hasUrls() || (!task && event->type() != QEvent::DragEnter)) {
    drag->ignore();
    return true;
  }
  drag->setDropAction(Qt::CopyAction);
  drag->accept();
  if (!moves) drop(task, drag->mimeData()->urls());
  return true;
}

void WhyNotSent::drop(const TaskPointer& task, const QList<QUrl>& urls) {
  const bool one = urls.size() == 1;
  const auto file = one ? FolderItem::fromNativePath(urls.first().toLocalFile()) : std::nullopt;
  // The program that the file comes from waits until the drop is over.
  QMetaObject::invokeMethod(
      this,
      [this, task, file, one] {
        if (file)
          explain(task, *file);
        else
          Messages::tell(m_list->window(), one ? klWhyNotLocal() : klWhyOneFile(), false);
      },
      Qt::QueuedConnection);
}

void WhyNotSent::showMenu(QPoint place) {
  const TaskPointer task = taskAt(place);
  if (!task) return;
  auto* const menu = new QMenu(m_list);
  menu->setObjectName(u"TaskMenu"_s);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  connect(menu->addAction(klWhyMenu()), &QAction::triggered, this, [this, task] { chooseFile(task); });
  menu->popup(m_list->viewport()->mapToGlobal(place));
}

void WhyNotSent::chooseFile(const TaskPointer& task) {
  const PathChooser::Texts texts{klWhyNotSent(), klSelect(), klCancel(),
                                 fillPlaceholders(klWhyChoosePrompt(), {onOneLine(task->Name, LongestName)})};
  m_chooser.choose(PathChooser::What::File, texts, FolderItem::fromNativePath(task->inputFolderPath),
                   [this, task](const std::optional<FolderItem>& chosen) {
                     if (chosen) explain(task, *chosen);
                   });
}

void WhyNotSent::explain(const TaskPointer& task, const FolderItem& file) {
  (new WhyNotSentWindow(task, file, m_list->window()))->show();
}
