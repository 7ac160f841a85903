// How the main window's menus, navigation bar, panes and buttons are made, and which commands they
// are tied to.

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
#include "app/main_window.h"
#include "app/program.h"
#include "app/study_text_box.h"
#include "app/welcome_pane.h"
#include "reference/web_links.h"

using namespace Qt::StringLiterals;

namespace tessaly {

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
  hintLink_->installEventFilter(this);
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

}  // namespace tessaly
