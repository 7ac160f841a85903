#include "app/general_settings.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/error_boundary.h"
#include "app/program.h"

using namespace Qt::StringLiterals;

namespace tessaly {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 10;
constexpr int kFrameWidth = 320;

struct CheckBoxEntry {
  QLatin1StringView name;
  QLatin1StringView caption;
  bool OptionChoices::*choice = nullptr;
  bool beginsGroup = false;
};

// From top to bottom.
constexpr std::array<CheckBoxEntry, kOptionChoiceCount> kCheckBoxes{{
    {"chkTimer"_L1, "Enable timer"_L1, &OptionChoices::TimerStatus, false},
    {"chkAlarm"_L1, "Set alarm for 3 hours"_L1, &OptionChoices::AlarmSetting, false},
    {"chkFonts"_L1, "Use small screen fonts"_L1, &OptionChoices::DisplaySmallFonts, true},
    {"chkGraphic"_L1, "Use graphical statistics"_L1, &OptionChoices::GraphicStats, false},
    {"chkTipofDay"_L1, "Display Tip of the Day at startup"_L1, &OptionChoices::TipofDay, true},
    {"chkPubSource"_L1, "View publications on hard drive"_L1, &OptionChoices::PubSource, false},
    {"chkMessages"_L1, "Reset reminder messages"_L1, &OptionChoices::ResetReminders, true},
}};

}  // namespace

frmOptions::frmOptions(Program& program, ErrorBoundary& errors, QWidget* parent)
    : QDialog(parent),
      editor_(program.State(), program.Settings(), program.Selector(), program.Machine().boxes),
      errors_(errors) {
  setObjectName(u"frmOptions"_s);
  setWindowTitle(u"General Settings"_s);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kMargin);
  column->addWidget(BuildCheckBoxes());
  column->addLayout(BuildButtons());
  column->setSizeConstraint(QLayout::SetFixedSize);
  ShowChoices(editor_.Choices());
  checkBoxes_.front()->setFocus();
}

QWidget* frmOptions::BuildCheckBoxes() {
  auto* frame = new QGroupBox(u"Select Settings"_s);
  frame->setObjectName(u"fraMMOptions"_s);
  frame->setMinimumWidth(kFrameWidth);
  auto* lines = new QVBoxLayout(frame);
  lines->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  lines->setSpacing(kSpacing);
  for (std::size_t i = 0; i < kCheckBoxes.size(); ++i) {
    if (kCheckBoxes[i].beginsGroup) {
      lines->addSpacing(kSpacing);
    }
    checkBoxes_[i] = new QCheckBox(kCheckBoxes[i].caption);
    checkBoxes_[i]->setObjectName(kCheckBoxes[i].name);
    lines->addWidget(checkBoxes_[i]);
  }
  return frame;
}

QLayout* frmOptions::BuildButtons() {
  const auto newButton = [this](const QString& name, const QString& caption,
                                void (frmOptions::*clicked)()) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, clicked);
    return button;
  };
  auto* row = new QHBoxLayout;
  row->addWidget(newButton(u"cmdResetOptions"_s, u"Default"_s, &frmOptions::cmdResetOptions_Click));
  row->addStretch();
  auto* save = newButton(u"cmdSaveOptions"_s, u"Save"_s, &frmOptions::cmdSaveOptions_Click);
  save->setDefault(true);
  row->addWidget(save);
  row->addWidget(newButton(u"cmdCancel"_s, u"Cancel"_s, &frmOptions::cmdCancel_Click));
  return row;
}

void frmOptions::ShowChoices(const OptionChoices& choices) {
  for (std::size_t i = 0; i < kCheckBoxes.size(); ++i) {
    checkBoxes_[i]->setChecked(choices.*kCheckBoxes[i].choice);
  }
}

OptionChoices frmOptions::Choices() const {
  OptionChoices choices;
  for (std::size_t i = 0; i < kCheckBoxes.size(); ++i) {
    choices.*kCheckBoxes[i].choice = checkBoxes_[i]->isChecked();
  }
  return choices;
}

void frmOptions::cmdResetOptions_Click() {
  errors_.Run(u"saving the general settings"_s, [this] {
    if (editor_.Reset()) {
      accept();
    }
  });
}

void frmOptions::cmdSaveOptions_Click() {
  errors_.Run(u"saving the general settings"_s, [this] {
    editor_.Save(Choices());
    accept();
  });
}

}  // namespace tessaly
