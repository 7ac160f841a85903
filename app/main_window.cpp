// The main window itself: its making, its place on the screen and its end.

#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "app/picture.h"
#include "app/program.h"
#include "app/twips.h"
#include "app/window_reach.h"
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
  PlaceWindow(placement);
  if (placement.Maximized) {
    setWindowState(windowState() | Qt::WindowMaximized);
  }
  SetPanelText(Panel::Timer, u"Timer Disabled"_s);
}

// The placement may come from a screen that is no longer there.
void frmMain::PlaceWindow(const WindowPlacement& placement) {
  move(ToPixels(placement.MainLeft), ToPixels(placement.MainTop));
  resize(ToPixels(placement.MainWidth), ToPixels(placement.MainHeight));
  QList<QRect> areas;
  for (const QScreen* available : QGuiApplication::screens()) {
    areas.append(available->availableGeometry());
  }
  const QRect stored(pos(), size());
  const QRect reachable = WithinReach(stored, areas);
  if (reachable != stored) {
    resize(reachable.size());
    move(reachable.topLeft());
  }
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
  } else if (watched == hintLink_ && event->type() == QEvent::FocusOut) {
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    // A selection stays while its context menu or another window is in front.
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
      hintLink_->setCursorPosition(0);
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

bool frmMain::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride &&
      IsKeyOfAnswerA(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  return QMainWindow::event(event);
}

void frmMain::keyPressEvent(QKeyEvent* event) {
  if (!IsKeyOfAnswerA(*event)) {
    QMainWindow::keyPressEvent(event);
    return;
  }
  if (!event->isAutoRepeat()) {
    answerButtons_[0]->click();
  }
}

// While the key is held down it stays the button's, which may be gone by then.
bool frmMain::IsKeyOfAnswerA(const QKeyEvent& event) const {
  if (event.key() != Qt::Key_A || event.modifiers() != Qt::AltModifier) {
    return false;
  }
  const QPushButton& button = *answerButtons_[0];
  const bool isLetterA = QKeySequence::mnemonic(button.text()) == QKeySequence(Qt::ALT | Qt::Key_A);
  return event.isAutoRepeat() || (button.isVisible() && button.isEnabled() && isLetterA);
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

void UnloadAllForms() {
  QApplication::closeAllWindows();
}

}  // namespace tessaly
