#include "tests/end_to_end/agent/window_commands.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QToolBar>
#include <QWindow>
#include <array>

using namespace Qt::StringLiterals;

namespace tessaly::test {

namespace {

[[noreturn]] void Refuse(const QString& name, const char* reason) {
  throw Refusal(name.toStdString() + ' ' + reason);
}

// A dialog that is open comes before one of the same name that is not.
QWidget* FindWidget(const QString& name) {
  QWidget* found = nullptr;
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() == name && (found == nullptr || widget->isVisible())) {
      found = widget;
    }
  }
  return found;
}

QAction* FindAction(const QString& name) {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* action = window->findChild<QAction*>(name)) {
      return action;
    }
  }
  return nullptr;
}

QWidget& WidgetNamed(const QString& name) {
  QWidget* widget = FindWidget(name);
  if (widget == nullptr) {
    Refuse(name, "is not there");
  }
  return *widget;
}

QWidget& WindowNamed(const QString& name) {
  return *WidgetNamed(name).window();
}

// The control to click for a name, which may be that of a toolbar button's action.
QWidget& ClickableNamed(const QString& name) {
  if (QWidget* widget = FindWidget(name)) {
    return *widget;
  }
  if (QAction* action = FindAction(name)) {
    for (QObject* owner : action->associatedObjects()) {
      if (const auto* toolbar = qobject_cast<QToolBar*>(owner)) {
        return *toolbar->widgetForAction(action);
      }
    }
  }
  Refuse(name, "is not there");
}

QMessageBox& OpenBox() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) {
    Refuse(u"a message box"_s, "is not open");
  }
  return *box;
}

// The system would deliver the mouse to whatever is in front there.
void ClickAt(QWidget& widget, const QPoint& place, const QString& name) {
  if (!widget.isVisible()) {
    Refuse(name, "is hidden");
  }
  if (!widget.isEnabled()) {
    Refuse(name, "is disabled");
  }
  QWidget& window = *widget.window();
  if (const QWidget* dialog = QApplication::activeModalWidget();
      dialog != nullptr && dialog != &window) {
    Refuse(name, "is behind a dialog");
  }
  const QPoint inWindow = widget.mapTo(&window, place);
  const QWidget* inFront = window.childAt(inWindow);
  if (inFront == nullptr || (inFront != &widget && !widget.isAncestorOf(inFront))) {
    Refuse(name, "is covered");
  }
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, inWindow);
}

// Check boxes and option buttons have their mark at their left end, and may be wider than it needs.
void Click(const QStringList& arguments) {
  constexpr int kMark = 8;
  QWidget& widget = ClickableNamed(arguments.value(0));
  const auto* button = qobject_cast<QAbstractButton*>(&widget);
  const bool hasMark = button != nullptr && button->isCheckable();
  const QPoint center = widget.rect().center();
  ClickAt(widget, hasMark ? QPoint(kMark, center.y()) : center, arguments.value(0));
}

void ClickItem(const QStringList& arguments) {
  auto* list = qobject_cast<QListWidget*>(&WidgetNamed(arguments.value(0)));
  if (list == nullptr || list->item(arguments.value(1).toInt()) == nullptr) {
    Refuse(arguments.join(u' '), "is no item of a list");
  }
  QListWidgetItem* item = list->item(arguments.value(1).toInt());
  list->scrollToItem(item);
  ClickAt(*list->viewport(), list->visualItemRect(item).center(), arguments.value(0));
}

// Keys go to the window in front, as a window manager would have it.
void Press(const QStringList& arguments) {
  QWidget* window = QApplication::activeModalWidget();
  if (window == nullptr) {
    window = FindWidget(u"frmMain"_s);
  }
  if (window == nullptr) {
    window = QApplication::activeWindow();
  }
  if (window == nullptr) {
    Refuse(u"a window for the keys"_s, "is not there");
  }
  if (!window->isActiveWindow()) {
    window->activateWindow();
  }
  const QKeySequence keys = QKeySequence::fromString(arguments.value(0));
  for (int i = 0; i < keys.count(); ++i) {
    const QKeyCombination key = keys[static_cast<uint>(i)];
    QTest::keyClick(window->windowHandle(), key.key(), key.keyboardModifiers());
  }
}

void Trigger(const QStringList& arguments) {
  QAction* action = FindAction(arguments.value(0));
  if (action == nullptr) {
    Refuse(arguments.value(0), "is not there");
  }
  if (!action->isEnabled()) {
    Refuse(arguments.value(0), "is disabled");
  }
  action->trigger();
}

void AnswerBox(const QStringList& arguments) {
  QMessageBox& box = OpenBox();
  for (QAbstractButton* button : box.buttons()) {
    if (button->text().remove(u'&') == arguments.value(0)) {
      ClickAt(*button, button->rect().center(), arguments.value(0));
      return;
    }
  }
  Refuse(arguments.value(0), "is no button of the box");
}

void CloseWindow(const QStringList& arguments) {
  WindowNamed(arguments.value(0)).windowHandle()->close();
}

void ResizeWindow(const QStringList& arguments) {
  WindowNamed(arguments.value(0)).resize(arguments.value(1).toInt(), arguments.value(2).toInt());
}

void MoveWindow(const QStringList& arguments) {
  WindowNamed(arguments.value(0)).move(arguments.value(1).toInt(), arguments.value(2).toInt());
}

void MinimizeWindow(const QStringList& arguments) {
  WindowNamed(arguments.value(0)).showMinimized();
}

void MaximizeWindow(const QStringList& arguments) {
  WindowNamed(arguments.value(0)).showMaximized();
}

void SavePicture(const QStringList& arguments) {
  if (!WidgetNamed(arguments.value(0)).grab().save(arguments.value(1), "PNG")) {
    Refuse(arguments.value(1), "cannot be written");
  }
}

QString TextOf(const QVariant& value) {
  if (value.typeId() == QMetaType::QRect) {
    const QRect rect = value.toRect();
    return u"%1,%2,%3,%4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
  }
  return value.toString();
}

// The colour as painted, near the right end, where a line of text seldom reaches.
QString PaintedBackground(QWidget& widget) {
  constexpr int kFromBorder = 6;
  const QImage picture = widget.grab().toImage();
  return picture.pixelColor(picture.width() - kFromBorder, picture.height() / 2).name();
}

// How many different colours there are in the control: a blank one has few, letters have many.
int PaintedColours(QWidget& widget) {
  const QImage picture = widget.grab().toImage();
  QSet<QRgb> colours;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      colours.insert(picture.pixel(x, y));
    }
  }
  return static_cast<int>(colours.size());
}

// A property of a control or menu item, or "background", "colours", "placement" or "selectedText".
QStringList Get(const QStringList& arguments) {
  QWidget* widget = FindWidget(arguments.value(0));
  QObject* object = widget;
  if (object == nullptr) {
    object = FindAction(arguments.value(0));
  }
  if (object == nullptr) {
    Refuse(arguments.value(0), "is not there");
  }
  const QString property = arguments.value(1);
  if (property == "background"_L1 && widget != nullptr) {
    return {PaintedBackground(*widget)};
  }
  if (property == "colours"_L1 && widget != nullptr) {
    return {QString::number(PaintedColours(*widget))};
  }
  if (property == "placement"_L1 && widget != nullptr) {
    return {TextOf(QRect(widget->pos(), widget->size()))};
  }
  if (const auto* pane = qobject_cast<QPlainTextEdit*>(widget);
      pane != nullptr && property == "selectedText"_L1) {
    return {pane->textCursor().selectedText()};
  }
  const QVariant value = object->property(property.toLatin1().constData());
  if (!value.isValid()) {
    Refuse(arguments.join(u' '), "is no property");
  }
  return {TextOf(value)};
}

QStringList Box(const QStringList&) {
  const QMessageBox& box = OpenBox();
  const QString icon =
      QString::fromLatin1(QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(box.icon()));
  QStringList fields{box.windowTitle(), box.text(), icon};
  for (const QAbstractButton* button : box.buttons()) {
    fields.append(button->text().remove(u'&'));
  }
  return fields;
}

// Visible windows, by their names or, where they have none, by their classes.
QStringList Windows(const QStringList&) {
  QStringList names;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) {
      names.append(window->objectName().isEmpty()
                       ? QString::fromLatin1(window->metaObject()->className())
                       : window->objectName());
    }
  }
  return names;
}

void ListMenu(const QList<QAction*>& actions, int depth, QStringList& lines) {
  for (const QAction* action : actions) {
    const QMenu* menu = action->menu();
    const QString name = action->objectName().isEmpty() && menu != nullptr ? menu->objectName()
                                                                           : action->objectName();
    const QString caption = action->isSeparator() ? u"-"_s : action->text();
    QString line = QString(depth, u' ') + name + u'|' + caption;
    if (!action->shortcut().isEmpty()) {
      line += u'|' + action->shortcut().toString(QKeySequence::PortableText);
    }
    lines.append(action->isVisible() ? line : line + u"|hidden"_s);
    if (menu != nullptr) {
      ListMenu(menu->actions(), depth + 1, lines);
    }
  }
}

// The menu bar, an item a field: "name|caption|shortcut", indented by its depth.
QStringList Menus(const QStringList&) {
  QStringList lines;
  const auto* window = qobject_cast<QMainWindow*>(&WindowNamed(u"frmMain"_s));
  ListMenu(window->menuBar()->actions(), 0, lines);
  return lines;
}

// The names of the actions that a toolbar or menu holds.
QStringList Actions(const QStringList& arguments) {
  QStringList names;
  for (const QAction* action : WidgetNamed(arguments.value(0)).actions()) {
    names.append(action->isSeparator() ? u"-"_s : action->objectName());
  }
  return names;
}

QStringList Items(const QStringList& arguments) {
  QStringList texts;
  const auto* list = qobject_cast<QListWidget*>(&WidgetNamed(arguments.value(0)));
  for (int row = 0; list != nullptr && row < list->count(); ++row) {
    texts.append(list->item(row)->text());
  }
  return texts;
}

template <typename Command>
struct Entry {
  QLatin1StringView name;
  Command command;
};

constexpr std::array kReadCommands{
    Entry<ReadCommand>{"get"_L1, Get},         Entry<ReadCommand>{"box"_L1, Box},
    Entry<ReadCommand>{"windows"_L1, Windows}, Entry<ReadCommand>{"menus"_L1, Menus},
    Entry<ReadCommand>{"actions"_L1, Actions}, Entry<ReadCommand>{"items"_L1, Items},
};

constexpr std::array kActCommands{
    Entry<ActCommand>{"click"_L1, Click},
    Entry<ActCommand>{"click-item"_L1, ClickItem},
    Entry<ActCommand>{"press"_L1, Press},
    Entry<ActCommand>{"trigger"_L1, Trigger},
    Entry<ActCommand>{"answer"_L1, AnswerBox},
    Entry<ActCommand>{"close"_L1, CloseWindow},
    Entry<ActCommand>{"resize"_L1, ResizeWindow},
    Entry<ActCommand>{"move"_L1, MoveWindow},
    Entry<ActCommand>{"minimize"_L1, MinimizeWindow},
    Entry<ActCommand>{"maximize"_L1, MaximizeWindow},
    Entry<ActCommand>{"save"_L1, SavePicture},
};

template <typename Command, std::size_t N>
Command Find(const std::array<Entry<Command>, N>& entries, const QString& name) {
  for (const Entry<Command>& entry : entries) {
    if (entry.name == name) {
      return entry.command;
    }
  }
  return nullptr;
}

}  // namespace

ReadCommand FindReadCommand(const QString& name) {
  return Find(kReadCommands, name);
}

ActCommand FindActCommand(const QString& name) {
  return Find(kActCommands, name);
}

}  // namespace tessaly::test
