#ifndef TESSALY_TESTS_SUPPORT_FORM_FIXTURE_H_
#define TESSALY_TESTS_SUPPORT_FORM_FIXTURE_H_

#include <QAbstractButton>
#include <QDialog>
#include <QTest>
#include <memory>

#include "app/error_boundary.h"
#include "tests/support/program_fixture.h"

namespace tessaly::test {

// One dialog over the program without windows, used with mouse and keys.
template <typename Form>
class FormTest : public ProgramTest {
protected:
  FormTest() { program.Prepare(); }

  void Open() {
    form = std::make_unique<Form>(program, errors, nullptr);
    Show();
  }
  void Show() {
    form->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  template <typename Widget>
  [[nodiscard]] Widget* Find(const QString& name) const {
    auto* widget = form->template findChild<Widget*>(name);
    EXPECT_NE(widget, nullptr) << name.toStdString();
    return widget;
  }
  // On its left end, where check boxes and option buttons have their mark.
  void Click(const QString& name) {
    auto* button = Find<QAbstractButton>(name);
    constexpr int kMark = 8;
    QTest::mouseClick(button, Qt::LeftButton, {}, {kMark, button->height() / 2});
  }
  void Press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
  [[nodiscard]] bool IsChecked(const QString& name) const {
    return Find<QAbstractButton>(name)->isChecked();
  }
  [[nodiscard]] bool IsShown(const QString& name) const { return Find<QWidget>(name)->isVisible(); }
  [[nodiscard]] QString CaptionOf(const QString& name) const {
    return Find<QAbstractButton>(name)->text();
  }

  ErrorBoundary errors{boxes};
  std::unique_ptr<Form> form;
};

}  // namespace tessaly::test

#endif  // TESSALY_TESTS_SUPPORT_FORM_FIXTURE_H_
