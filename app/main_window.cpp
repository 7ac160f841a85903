#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <cstddef>

#include "app/customize_toolbar.h"
#include "app/elided_label.h"
#include "app/pane_layout.h"
#include "app/picture.h"
#include "app/program.h"
#include "app/study_text_box.h"
#include "app/twips.h"
#include "app/welcome_pane.h"
#include "reference/web_links.h"
#include "store/settings_store.h"

using namespace Qt::StringLiterals;

namespace tessaly {

frmMain::frmMain(MessageBoxes& boxes) : errors_(boxes), client_(new QWidget) {
  RegisterPictures();
  setObjectName(u"frmMain"_s);
  setWindowTitle(kApplicationTitle);
  setCentralWidget(client_);
  // A stored width of nothing must leave a window that can be found and enlarged.
  constexpr int kSmallestWidthTwips = 2040;
  setMinimumWidth(ToPixels(kSmallestWidthTwips));
  client_->setObjectName(u"client"_s);
  client_->installEventFilter(this);
  BuildMenus();
  BuildToolbar();
  BuildPanes();
  BuildAnswerButtons();
  BuildStatusBar();
  SetFocusOrder();
  testTimer_ = new QTimer(this);
  testTimer_->setObjectName(u"tmrTestTimer"_s);
}

void frmMain::Attach(Program& program) {
  program_ = &program;
  ConnectCommands();
  ConnectAnswerButtons();
}

void frmMain::Form_Load() {
  const WindowPlacement placement = program_->Settings().LoadWindowPlacement();
  if (placement.Maximized) {
    const WindowPlacement normal;
    resize(ToPixels(normal.MainWidth), ToPixels(normal.MainHeight));
    setWindowState(windowState() | Qt::WindowMaximized);
  } else {
    move(ToPixels(placement.MainLeft), ToPixels(placement.MainTop));
    resize(ToPixels(placement.MainWidth), ToPixels(placement.MainHeight));
  }
  SetPanelText(Panel::Timer, u"Timer Disabled"_s);
}

void frmMain::BuildMenus() {
  for (const MenuEntry& entry : MenuBarEntries()) {
    QMenu* menu = menuBar()->addMenu(entry.caption);
    menu->setObjectName(entry.name);
    AddMenuItems(menu, entry.items);
  }
  auto* popUp = new QMenu(PopUpMenu().caption, this);
  popUp->setObjectName(PopUpMenu().name);
  AddMenuItems(popUp, PopUpMenu().items);
  popUp->menuAction()->setVisible(false);
  menuBar()->addMenu(popUp);
  QAction* statusBarItem = ActionOf("mnuViewStatusBar"_L1);
  statusBarItem->setCheckable(true);
  statusBarItem->setChecked(true);
}

void frmMain::AddMenuItems(QMenu* menu, std::span<const MenuItem> items) {
  for (const MenuItem& item : items) {
    if (!item.submenu.empty()) {
      QMenu* submenu = menu->addMenu(item.caption);
      submenu->menuAction()->setObjectName(item.name);
      AddMenuItems(submenu, item.submenu);
      continue;
    }
    QAction* action =
        item.caption == kSeparatorCaption ? menu->addSeparator() : menu->addAction(item.caption);
    action->setObjectName(item.name);
    action->setShortcut(QKeySequence(item.shortcut));
    // A command can be used once a handler is connected.
    action->setEnabled(false);
    menuActions_[item.name] = action;
  }
}

void frmMain::BuildToolbar() {
  coolBar_ = new QFrame(client_);
  coolBar_->setObjectName(u"CoolBar1"_s);
  toolbar_ = new QToolBar(coolBar_);
  toolbar_->setObjectName(u"Toolbar1"_s);
  toolbar_->setAccessibleName(u"Navigation bar"_s);
  toolbar_->setOrientation(Qt::Vertical);
  toolbar_->setMovable(false);
  toolbar_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  constexpr int kIconSize = 24;
  toolbar_->setIconSize({kIconSize, kIconSize});
  for (const ToolButtonEntry& entry : kToolButtons) {
    auto* action =
        new QAction(QIcon(u":/pictures/"_s + entry.picture + u".png"_s), entry.caption, this);
    toolActions_[static_cast<std::size_t>(entry.button)] = action;
    action->setObjectName(u"Toolbar1."_s + entry.key);
    action->setToolTip(entry.toolTip);
    action->setData(QString(entry.description.isEmpty() ? entry.caption : entry.description));
    const QString key = entry.key;
    connect(action, &QAction::triggered, this, [this, key] { Toolbar1_ButtonClick(key); });
  }
  ArrangeToolbar(*toolbar_, DefaultArrangement(*this));
}

void frmMain::BuildPanes() {
  rightWrong_ = new QLineEdit(client_);
  rightWrong_->setObjectName(u"txtRightWrong"_s);
  rightWrong_->setAccessibleName(u"Feedback"_s);
  rightWrong_->setReadOnly(true);
  QFont feedbackFont = rightWrong_->font();
  feedbackFont.setBold(true);
  rightWrong_->setFont(feedbackFont);
  question_ = new StudyTextBox(u"txtQuestion"_s, u"Question"_s, client_);
  answer_ = new StudyTextBox(u"txtAnswer"_s, u"Explanation"_s, client_);
  hintLink_ = new QLineEdit(client_);
  hintLink_->setObjectName(u"txtHintLink"_s);
  hintLink_->setAccessibleName(u"Research reference"_s);
  hintLink_->setReadOnly(true);
  const std::array hiddenNames{u"txtQNo"_s, u"txtAnswerNumber"_s, u"txtAnswered"_s,
                               u"txtPassFail"_s};
  for (std::size_t i = 0; i < hiddenBoxes_.size(); ++i) {
    hiddenBoxes_[i] = new QLineEdit(client_);
    hiddenBoxes_[i]->setObjectName(hiddenNames[i]);
    hiddenBoxes_[i]->hide();
  }
  welcome_ = new WelcomePane(client_);
  for (const Box box : {Box::txtRightWrong, Box::txtQuestion, Box::txtAnswer, Box::txtHintLink}) {
    ShowBox(box, false);
  }
  SetFeedbackColour(BoxColour::LightYellow);
}

void frmMain::BuildAnswerButtons() {
  const QFont arial(u"Arial"_s);
  const std::array names{u"cmdA"_s, u"cmdB"_s, u"cmdC"_s, u"cmdD"_s};
  const std::array captions{u"&A"_s, u"&B"_s, u"&C"_s, u"&D"_s};
  for (std::size_t i = 0; i < answerButtons_.size(); ++i) {
    answerButtons_[i] = new QPushButton(captions[i], client_);
    answerButtons_[i]->setObjectName(names[i]);
    answerButtons_[i]->setFont(arial);
  }
  skip_ = new QPushButton(u"S&kip"_s, client_);
  skip_->setObjectName(u"cmdSkip"_s);
  skip_->setFont(arial);
  skip_->setToolTip(u"Skip this question"_s);
  // Laid out around the answer buttons, and otherwise without a use.
  auto* frame = new QFrame(client_);
  frame->setObjectName(u"fraButtons"_s);
  frame->hide();
  HideAnswerButtons();
}

void frmMain::BuildStatusBar() {
  statusBar_ = new QStatusBar(client_);
  statusBar_->setObjectName(u"sbrStatusBar"_s);
  const std::array toolTips{u"Study mode"_s, u"Year and section being studied"_s, u"Timer"_s};
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    const bool takesTheRest = i == 1;
    panels_[i] = takesTheRest ? new ElidedLabel(statusBar_) : new QLabel(statusBar_);
    panels_[i]->setObjectName(u"sbrStatusBar.%1"_s.arg(i + 1));
    panels_[i]->setAccessibleName(toolTips[i]);
    panels_[i]->setToolTip(toolTips[i]);
    panels_[i]->setTextFormat(Qt::PlainText);
    panels_[i]->setMargin(3);
    statusBar_->addWidget(panels_[i], takesTheRest ? 1 : 0);
  }
}

void frmMain::ConnectCommands() {
  for (const CommandHandler& entry : kHandlers) {
    QAction* action = ActionOf(entry.command);
    connect(action, &QAction::triggered, this, [this, &entry] { RunCommand(entry); });
    action->setEnabled(true);
  }
  for (const WebLink& link : kWebLinks) {
    QAction* action = ActionOf(link.command);
    connect(action, &QAction::triggered, this, [this, &link] {
      errors_.Run(u"opening a link"_s, [&] { OpenWebLink(link, program_->Machine()); });
    });
    action->setEnabled(true);
  }
  for (const ToolButtonEntry& entry : kToolButtons) {
    EnableToolButton(entry.button, true);
  }
}

void frmMain::ConnectAnswerButtons() {
  for (std::size_t i = 0; i < answerButtons_.size(); ++i) {
    connect(answerButtons_[i], &QPushButton::clicked, this, [this, i] {
      errors_.Run(u"grading the answer"_s,
                  [this, i] { program_->Session().GradeAnswer(static_cast<std::int16_t>(i)); });
    });
  }
  connect(skip_, &QPushButton::clicked, this, [this] { cmdSkip_Click(); });
  connect(testTimer_, &QTimer::timeout, this, [this] { tmrTestTimer_Timer(); });
}

// From the question over its answers to the explanation, then the navigation bar.
void frmMain::SetFocusOrder() {
  QWidget* previous = question_;
  for (QPushButton* button : answerButtons_) {
    setTabOrder(previous, button);
    previous = button;
  }
  setTabOrder(previous, skip_);
  setTabOrder(skip_, answer_);
  setTabOrder(answer_, hintLink_);
  setTabOrder(hintLink_, rightWrong_);
  setTabOrder(rightWrong_, toolbar_);
}

void frmMain::SetBoxText(Box box, const QString& text) {
  QWidget* widget = WidgetOf(box);
  if (auto* pane = qobject_cast<StudyTextBox*>(widget)) {
    pane->setPlainText(text);
  } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
    line->setText(text);
    line->setCursorPosition(0);
  }
}

QString frmMain::BoxText(Box box) const {
  QWidget* widget = WidgetOf(box);
  if (const auto* pane = qobject_cast<StudyTextBox*>(widget)) {
    return pane->toPlainText();
  }
  return qobject_cast<QLineEdit*>(widget)->text();
}

void frmMain::ShowBox(Box box, bool visible) {
  WidgetOf(box)->setVisible(visible);
  if (box == Box::txtQuestion) {
    welcome_->setVisible(!visible);
  } else if (box == Box::txtAnswer && visible) {
    answer_->setFocus();
  }
}

void frmMain::SetFeedbackColour(BoxColour colour) {
  QColor background(255, 255, 192);
  if (colour == BoxColour::Green) {
    background = QColor(0, 255, 0);
  } else if (colour == BoxColour::Red) {
    background = QColor(255, 0, 0);
  }
  QPalette palette = rightWrong_->palette();
  palette.setColor(QPalette::Base, background);
  palette.setColor(QPalette::Text, Qt::black);
  rightWrong_->setPalette(palette);
}

void frmMain::SetQuestionFontSize(int points) {
  question_->SetFontSize(points);
  answer_->SetFontSize(points);
}

void frmMain::ShowAnswerButtons(bool trueFalse) {
  answerButtons_[0]->setText(trueFalse ? u"&True"_s : u"&A"_s);
  answerButtons_[1]->setText(trueFalse ? u"Fa&lse"_s : u"&B"_s);
  FitPanes();
  answerButtons_[0]->show();
  answerButtons_[1]->show();
  answerButtons_[2]->setVisible(!trueFalse);
  answerButtons_[3]->setVisible(!trueFalse);
  skip_->show();
  question_->setFocus();
}

void frmMain::HideAnswerButtons() {
  // Otherwise the focus would wander on to whatever stands behind the buttons.
  question_->setFocus();
  for (QPushButton* button : answerButtons_) {
    button->hide();
  }
  skip_->hide();
}

void frmMain::FitPanes() {
  if (isMinimized() || program_ == nullptr) {
    return;
  }
  const ProgramState& state = program_->State();
  const QSize client = ClientTwips();
  const PaneLayout layout =
      ArrangePanes(client.width(), client.height(), ToTwips(toolbar_->sizeHint().height()),
                   state.Answered, state.TrueFalse);
  coolBar_->setGeometry(0, 0, ToPixels(kNavigationBarWidth), ToPixels(layout.coolBarHeight));
  toolbar_->setGeometry(coolBar_->rect());
  rightWrong_->setGeometry(ToPixels(layout.rightWrong));
  question_->setGeometry(ToPixels(layout.question));
  welcome_->setGeometry(ToPixels(layout.question));
  if (state.Answered) {
    answer_->setGeometry(ToPixels(layout.answer));
  }
  for (std::size_t i = 0; i < answerButtons_.size(); ++i) {
    answerButtons_[i]->setGeometry(ToPixels(layout.answerButtons[i]));
  }
  skip_->setGeometry(ToPixels(layout.skip));
  hintLink_->setGeometry(ToPixels(layout.hintLink));
  const int statusHeight = statusBar_->sizeHint().height();
  statusBar_->setGeometry(0, client_->height() - statusHeight, client_->width(), statusHeight);
}

void frmMain::EnableCommand(Command command, bool enabled) {
  const QLatin1StringView name = NameOf(command);
  ActionOf(name)->setEnabled(enabled);
}

void frmMain::EnableToolButton(ToolButton button, bool enabled) {
  toolActions_[static_cast<std::size_t>(button)]->setEnabled(enabled);
}

void frmMain::SetPanelText(Panel panel, const QString& text) {
  panels_[static_cast<std::size_t>(panel) - 1]->setText(text);
  if (panel == Panel::Selection) {
    welcome_->SetSelection(text);
  }
}

void frmMain::SetPanelToolTip(Panel panel, const QString& toolTip) {
  panels_[static_cast<std::size_t>(panel) - 1]->setToolTip(toolTip);
}

void frmMain::StartTestTimer(int intervalMilliseconds) {
  testTimer_->start(intervalMilliseconds);
}

void frmMain::StopTestTimer() {
  testTimer_->stop();
}

float frmMain::Measure(WindowMeasure measure) const {
  switch (measure) {
    case WindowMeasure::Height:
      return static_cast<float>(ToTwips(height()));
    case WindowMeasure::Left:
      return static_cast<float>(ToTwips(x()));
    case WindowMeasure::Top:
      return static_cast<float>(ToTwips(y()));
    case WindowMeasure::Width:
      break;
  }
  return static_cast<float>(ToTwips(width()));
}

void frmMain::SetMeasure(WindowMeasure measure, float twips) {
  // A maximized window would not take a place of its own.
  setWindowState(windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
  const int pixels = ToPixels(static_cast<double>(twips));
  switch (measure) {
    case WindowMeasure::Height:
      resize(width(), pixels);
      break;
    case WindowMeasure::Left:
      move(pixels, y());
      break;
    case WindowMeasure::Top:
      move(x(), pixels);
      break;
    case WindowMeasure::Width:
      resize(pixels, height());
      break;
  }
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (!isMinimized()) {
    errors_.Run(u"saving the window's placement"_s, [this] { SaveWindowPlacement(); });
  }
  event->accept();
  UnloadAllForms();
  // Not left to the last window: a form that comes and goes meanwhile keeps the program from
  // noticing that it was the last.
  QCoreApplication::exit();
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
  if (watched == client_ && event->type() == QEvent::Resize) {
    FitPanes();
  }
  return QMainWindow::eventFilter(watched, event);
}

void frmMain::SaveWindowPlacement() {
  WindowPlacement placement;
  placement.Maximized = isMaximized();
  placement.MainLeft = Measure(WindowMeasure::Left);
  placement.MainTop = Measure(WindowMeasure::Top);
  placement.MainWidth = Measure(WindowMeasure::Width);
  placement.MainHeight = Measure(WindowMeasure::Height);
  program_->Settings().SaveWindowPlacement(placement);
}

QAction* frmMain::ActionOf(QLatin1StringView name) const {
  return menuActions_.at(name);
}

QWidget* frmMain::WidgetOf(Box box) const {
  switch (box) {
    case Box::txtRightWrong:
      return rightWrong_;
    case Box::txtQuestion:
      return question_;
    case Box::txtAnswer:
      return answer_;
    case Box::txtHintLink:
      return hintLink_;
    case Box::txtQNo:
    case Box::txtAnswerNumber:
    case Box::txtAnswered:
    case Box::txtPassFail:
      break;
  }
  return hiddenBoxes_[static_cast<std::size_t>(box) - static_cast<std::size_t>(Box::txtQNo)];
}

QSize frmMain::ClientTwips() const {
  return {ToTwips(client_->width()), ToTwips(client_->height())};
}

void UnloadAllForms() {
  QApplication::closeAllWindows();
}

}  // namespace tessaly
