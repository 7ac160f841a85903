#ifndef TESSALY_TESTS_SUPPORT_FAKES_H_
#define TESSALY_TESTS_SUPPORT_FAKES_H_

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QStringList>
#include <functional>
#include <map>
#include <set>

#include "app/main_window_commands.h"
#include "app/main_window_view.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/drives.h"
#include "platform/message_boxes.h"
#include "store/settings_store.h"

namespace tessaly::test {

// Settings in memory that remember the order in which they were written, as "Section/Key=value".
class FakeSettings : public SettingsStore {
public:
  QString Read(const QString& section, const QString& key, const QString& fallback) const override {
    return values.value(section + u'/' + key, fallback);
  }
  void Write(const QString& section, const QString& key, const QString& value) override {
    values[section + u'/' + key] = value;
    writes.append(section + u'/' + key + u'=' + value);
  }
  void Delete(const QString& section, const QString& key) override {
    values.remove(section + u'/' + key);
    writes.append(QStringLiteral("delete ") + section + u'/' + key);
  }

  QMap<QString, QString> values;
  QStringList writes;
};

// A clock that stands still until it is moved; sleeping moves it.
class FakeClock : public Clock {
public:
  QDateTime Now() const override { return now; }
  void Sleep(int milliseconds) override { now = now.addMSecs(milliseconds); }
  void Wait(int milliseconds) override {
    if (whenWaiting) {
      whenWaiting();
    }
    Sleep(milliseconds);
  }

  std::function<void()> whenWaiting;
  QDateTime now{QDate(2001, 6, 15), QTime(10, 0)};
};

// Drives that come and go as a test says.
class FakeDrives : public Drives {
public:
  QList<Drive> Removable() const override { return removable; }

  QList<Drive> removable;
};

// Opens and starts what a test lets it, and remembers what it was asked for.
class FakeDesktop : public Desktop {
public:
  bool OpenLink(const QString& link) override {
    asked.append(link);
    return works;
  }
  bool StartProgram(const QString& path) override {
    asked.append(path);
    return works;
  }

  QStringList asked;
  bool works = true;
};

// Answers every box at once and remembers it as "title|text".
class FakeBoxes : public MessageBoxes {
public:
  BoxAnswer Show(const QString& text, const QString& title, BoxIcon icon,
                 BoxButtons buttons) override {
    shown.append(title + u'|' + text);
    lastIcon = icon;
    if (whenShown) {
      whenShown();
    }
    if (!answers.isEmpty()) {
      return answers.takeFirst();
    }
    // Where OK tries again, an answer that nobody gave must not try for ever.
    return buttons == BoxButtons::YesNo      ? BoxAnswer::Yes
           : buttons == BoxButtons::OkCancel ? BoxAnswer::Cancel
                                             : BoxAnswer::Ok;
  }

  QStringList shown;
  QList<BoxAnswer> answers;
  BoxIcon lastIcon = BoxIcon::None;
  std::function<void()> whenShown;
};

// What the main window would show.
class FakeView : public MainWindowView {
public:
  void SetBoxText(Box box, const QString& text) override { boxes[box] = text; }
  QString BoxText(Box box) const override {
    const auto found = boxes.find(box);
    return found == boxes.end() ? QString() : found->second;
  }
  void ShowBox(Box box, bool visible) override {
    if (visible) {
      visibleBoxes.insert(box);
    } else {
      visibleBoxes.erase(box);
    }
  }
  void SetFeedbackColour(BoxColour colour) override { feedbackColour = colour; }
  void SetQuestionFontSize(int points) override { fontSize = points; }
  void ShowAnswerButtons(bool isTrueFalse) override {
    buttonsVisible = true;
    trueFalse = isTrueFalse;
  }
  void HideAnswerButtons() override { buttonsVisible = false; }
  void FitPanes() override { ++timesFitted; }
  void EnableCommand(Command command, bool enabled) override { commands[command] = enabled; }
  void EnableToolButton(ToolButton button, bool enabled) override { buttons[button] = enabled; }
  void SetPanelText(Panel panel, const QString& text) override { panels[panel] = text; }
  void SetPanelToolTip(Panel panel, const QString& toolTip) override { toolTips[panel] = toolTip; }
  void StartTestTimer(int intervalMilliseconds) override { timerInterval = intervalMilliseconds; }
  void StopTestTimer() override { timerInterval = 0; }

  [[nodiscard]] bool IsVisible(Box box) const { return visibleBoxes.contains(box); }

  std::map<Box, QString> boxes;
  std::set<Box> visibleBoxes;
  BoxColour feedbackColour = BoxColour::LightYellow;
  int fontSize = 0;
  bool buttonsVisible = false;
  bool trueFalse = false;
  int timesFitted = 0;
  std::map<Command, bool> commands;
  std::map<ToolButton, bool> buttons;
  std::map<Panel, QString> panels;
  std::map<Panel, QString> toolTips;
  int timerInterval = 0;  // 0 while the timer is off
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_FAKES_H_
