// The clipboard.
#include "outside/clipboard.h"

#include "paint/text.h"

#include <QClipboard>
#include <QGuiApplication>

namespace kelvarine {

std::string ClipboardText()
{
    return QGuiApplication::clipboard()->text().toStdString();
}

void SetClipboardText(std::string_view text)
{
    QGuiApplication::clipboard()->setText(Text(text));
}

} // namespace kelvarine
