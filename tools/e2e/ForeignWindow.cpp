#include "ForeignWindow.h"

#include "RunningProduct.h"

#include <stdexcept>

ForeignWindow::ForeignWindow(const RunningProduct& product, const std::string& title, const QRect& place)
    : m_product(product), m_title(title) {
    if (!product.HasLauncher())
        m_window = product.Screen().ShowWindow(title, place, true);
    else
        product.Start(m_program, Steering::ForeignWindow,
                      {title, std::to_string(place.x()), std::to_string(place.y()),
                       std::to_string(place.width()), std::to_string(place.height())});
}

ForeignWindow::~ForeignWindow() {
    if (m_window)
        m_product.Screen().DestroyWindow(m_window);
}

// Under Wine the program itself must ask: what the window manager lifts on its own account, Wine does not
// always learn, and with it no other program.
void ForeignWindow::Tell(const std::string& command) {
    const std::size_t before = m_program.Output().size();
    m_program.Write(command + '\n');
    if (!WaitUntil([&] { return m_program.Output().find(command, before) != std::string::npos; }))
        throw std::runtime_error("the window " + m_title + " does not follow");
}

void ForeignWindow::Activate() {
    if (m_window)
        m_product.Screen().Activate(m_product.Screen().Find(m_title).value());
    else
        Tell("activate");
}

void ForeignWindow::Raise() {
    if (m_window)
        m_product.Screen().Raise(m_product.Screen().Find(m_title).value());
    else
        Tell("raise");
}
