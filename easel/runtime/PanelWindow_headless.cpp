#include "easel/runtime/PanelWindow.h"

namespace easel {

struct PanelWindow::System {};

// NOLINTNEXTLINE(performance-unnecessary-value-param): where there are windows, they keep it
PanelWindow::PanelWindow(const std::u32string&, AISize, PanelWindowEvents, const PanelDock&) {}
PanelWindow::~PanelWindow() = default;
AIPanelPlatformWindow PanelWindow::client() const noexcept { return nullptr; }
void PanelWindow::setTitle(const std::u32string&) {}
void PanelWindow::setSize(AISize) {}
void PanelWindow::setButtons(PanelButtons) {}
ai::uint32 PanelWindow::popUp(const std::vector<FlyoutItem>&) { return 0; }
void PanelWindow::show(bool) {}
void PanelWindow::move(AIPoint) {}

} // namespace easel
