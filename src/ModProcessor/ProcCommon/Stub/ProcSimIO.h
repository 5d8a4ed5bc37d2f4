// Placeholder for the devices, deleted (the whole folder) by whoever brings the real ones.
#pragma once
#include <QWidget>
#include <memory>
namespace nsProc { class ProcSimPorts; class ProcSimIO : public QWidget { 
 Q_OBJECT
 public: ProcSimIO(std::shared_ptr<ProcSimPorts>, QWidget* p= nullptr):QWidget(p){} void setBase(int){} void refresh(){} signals: void wavesRequested(); }; }
