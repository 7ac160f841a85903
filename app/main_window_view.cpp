// The main window as the study logic sees it: what it shows, and where.

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTextDocument>
#include <QTimer>
#include <QToolBar>
#include <cstddef>

#include "app/main_window.h"
#include "app/pane_layout.h"
#include "app/program.h"
#include "app/study_text_box.h"
#include "app/twips.h"
#include "app/welcome_pane.h"
#include "reference/hint_form.h"
#include "reference/research_hint.h"

using namespace Qt::StringLiterals;

namespace tessaly {

void frmMain::SetBoxText(Box box, const QString& text) {
  QWidget* widget = WidgetOf(box);
  if (auto* pane = qobject_cast<StudyTextBox*>(widget)) {
    pane->setPlainText(text);
  } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
    line->setText(text);
    line->setCursorPosition(0);
  }
  if (box == Box::txtHintLink) {
    ShowHintLink(text);
  }
}

// The whole hint wherever it is shown: the box cuts most, and the dialog would otherwise tell of
// one question and open the page of another.
void frmMain::ShowHintLink(const QString& hint) {
  hintLink_->setToolTip(
      Qt::mightBeRichText(hint) ? Qt::convertFromPlainText(hint, Qt::WhiteSpaceNormal) : hint);
  if (!hint_.isNull()) {
    hint_->SetHint(HintToShow(*this));
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
  welcome_->setGeometry(ToPixels(layout.welcome));
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

}  // namespace tessaly
