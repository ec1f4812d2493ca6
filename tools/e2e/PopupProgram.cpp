#include "PopupProgram.h"

#include "RunningProduct.h"

#include <QFile>

bool PopupProgram::TellRules(RunningProduct& product) {
    ChildProcess printer;
    product.Start(printer, Steering::Popups, {"--rules"});
    const std::string path = product.Folder() + "/rules.json";
    QFile file(QString::fromStdString(path));
    if (!WaitUntil([&] { return printer.Result().has_value(); }) || !file.open(QIODevice::WriteOnly))
        return false;
    file.write(QByteArray::fromStdString(printer.Output()));
    file.close();
    return product.Order("popup-rules " + product.PathForPrograms(path));
}

PopupProgram::PopupProgram(const RunningProduct& product) {
    product.Start(m_program, Steering::Popups, {});
}

int PopupProgram::Lines(const std::string& text) {
    return QByteArray::fromStdString(Output()).count(text.c_str());
}

bool PopupProgram::Says(const std::string& text, int times) {
    return WaitUntil([&] { return Lines(text) >= times; });
}
