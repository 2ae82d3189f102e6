#pragma once

#include <QSysInfo>
#include <QtGlobal>

#include "platform/system_facts.h"

namespace tr7 {

class QtSystemFacts : public SystemFacts {
 public:
  std::string Toolkit() const override { return std::string("Qt ") + qVersion(); }
  std::string System() const override {
    const QString words = QSysInfo::prettyProductName() + ", " + QSysInfo::kernelType() + " " +
                          QSysInfo::kernelVersion() + ", " + QSysInfo::currentCpuArchitecture();
    return words.toStdString();
  }
};

}  // namespace tr7
