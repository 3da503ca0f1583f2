#include "ui/outside/printer_qt.h"

#include "files/player_file.h"
#include "grid/colour.h"
#include "outside/messages.h"
#include "outside/printer.h"
#include "outside/whole_file.h"
#include "paint/print_painter.h"
#include "paint/text.h"
#include "paint/text_painter.h"
#include "ui/window/front.h"
#include "ui/window/notices.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinterInfo>

#include <algorithm>
#include <cassert>
#include <cmath>
#include <memory>
#include <utility>

namespace kelvarine {

namespace {

constexpr double PdfMargin = 0.25; // inches; no printer that the file may go to prints farther out
constexpr double LabelPoints = 10; // of 72 to the inch
constexpr double ScreenPixelsPerInch = 96; // that the board's typeface counts its points by

// The document in hand. A PDF file is collected here and written whole when it ends.
struct Document {
    QBuffer Bytes;
    std::unique_ptr<QPdfWriter> Pdf;
    std::string File; // that the PDF goes to, whatever the printer is asked for meanwhile
    QPainter Pen;
    std::string Failure;
};

std::unique_ptr<QPrinter> chosenPrinter;
std::unique_ptr<Document> document;
std::unique_ptr<Document> ended; // and not yet handed over

bool WritesPdf()
{
    return ChosenPrinter().outputFormat() == QPrinter::PdfFormat;
}

// A printer prints as far out as it can; the margins asked for are too wide for that.
void TakeWidestArea(QPrinter &printer)
{
    QPageLayout layout = printer.pageLayout();
    layout.setMargins(layout.minimumMargins());
    printer.setPageLayout(layout);
}

void PreparePdf(QPrinter &printer)
{
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageLayout(QPageLayout(UsualPaper(QLocale()), QPageLayout::Portrait,
                                      QMarginsF(PdfMargin, PdfMargin, PdfMargin, PdfMargin),
                                      QPageLayout::Inch));
}

QPagedPaintDevice &Device()
{
    if (document->Pdf != nullptr) {
        return *document->Pdf;
    }
    return ChosenPrinter();
}

void OpenPdf()
{
    document->Bytes.open(QIODevice::WriteOnly);
    document->Pdf = std::make_unique<QPdfWriter>(&document->Bytes);
    document->Pdf->setResolution(ChosenPrinter().resolution());
    document->Pdf->setPageLayout(ChosenPrinter().pageLayout());
    document->Pdf->setPageRanges(ChosenPrinter().pageRanges());
    document->Pdf->setTitle(Text(ProgramName));
    const QString file = ChosenPrinter().outputFileName();
    document->File = QFile::encodeName(file).toStdString();
    // The toolkit's dialog shows this letter for bytes that belong to none, which are lost by that.
    if (file.contains(QChar::ReplacementCharacter) && !FileExists(document->File)) {
        document->Failure = "The name of this file is no text.\r\rPlease choose another one.";
    }
}

void BeginDocument()
{
    document = std::make_unique<Document>();
    if (WritesPdf()) {
        OpenPdf();
    }
}

bool Fail()
{
    document->Failure = "The printer does not answer.";
    return false;
}

// True when the document is open, after opening it where it is not.
bool IsOpen()
{
    if (document == nullptr) {
        BeginDocument();
        if (!document->Pen.begin(&Device())) {
            return Fail();
        }
    }
    return document->Failure.empty();
}

Face LabelFace()
{
    return BoardFace(LabelPoints * ChosenPrinter().resolution() / ScreenPixelsPerInch);
}

// A place in whole pixels. No printer comes near the bounds, so what lies beyond is off the page.
double WholePixels(double position)
{
    constexpr double farthest = 1e7;
    return std::clamp(std::round(position), -farthest, farthest);
}

// Whether the bytes of a document are where they belong: in its file, or with the printer already.
// Not so when the player would rather keep the file that is there; the words of a failure say why.
bool IsDelivered(const Document &whole, std::string &failure)
{
    if (!failure.empty() || whole.Pdf == nullptr) {
        return failure.empty();
    }
    const QByteArray &bytes = whole.Bytes.data();
    return WritePlayerFile(whole.File, {bytes.constData(), static_cast<std::size_t>(bytes.size())},
                           failure);
}

std::string Deliver(const Document &whole)
{
    std::string failure = whole.Failure;
    if (IsDelivered(whole, failure)) {
        Tell(Text("printed")); // whoever looks at the screen has seen the dialog go
    }
    return failure;
}

} // namespace

QPrinter &ChosenPrinter()
{
    if (chosenPrinter == nullptr) {
        chosenPrinter = std::make_unique<QPrinter>(QPrinter::HighResolution);
        if (QPrinterInfo::defaultPrinter().isNull()) {
            PreparePdf(*chosenPrinter);
        } else {
            TakeWidestArea(*chosenPrinter);
        }
        // A printer must not outlive the application.
        qAddPostRoutine([] { chosenPrinter.reset(); });
    }
    return *chosenPrinter;
}

QPageSize UsualPaper(const QLocale &locale)
{
    const bool inches = locale.measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize{inches ? QPageSize::Letter : QPageSize::A4};
}

PrinterPage CurrentPrinterPage()
{
    const QPrinter &printer = ChosenPrinter();
    const double perInch = printer.resolution();
    const QSizeF area = printer.pageLayout().paintRect(QPageLayout::Inch).size() * perInch;
    return {std::max(1.0, area.width()), std::max(1.0, area.height()), perInch, perInch};
}

bool ChoosePrinter()
{
    return ChoosePrinterOver(AskingWindow());
}

bool ChoosePrinterOver(QWidget *asker)
{
    // With another printer the dialog takes that one's own margins, the narrowest.
    QPrintDialog dialog(&ChosenPrinter(), asker);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    return RunDialog(dialog) == QDialog::Accepted;
}

bool PrintPicture(PrintedPicture picture, const PagePlace &place)
{
    if (!IsOpen()) {
        return false;
    }
    const QRectF whole(WholePixels(place.Left), WholePixels(place.Top), WholePixels(place.Width),
                       WholePixels(place.Height));
    if (picture == PrintedPicture::Board) {
        PrintBoard(document->Pen, whole);
    } else {
        PrintGrid(document->Pen, whole, true);
    }
    return true;
}

bool PrintText(double left, double top, std::string_view text)
{
    if (!IsOpen()) {
        return false;
    }
    const Point corner{static_cast<int>(WholePixels(left)), static_cast<int>(WholePixels(top))};
    WriteText(document->Pen, LabelFace(), corner, text, StandardColours[0]);
    return true;
}

double PrintedTextWidth(std::string_view text)
{
    return TextWidth(LabelFace(), text);
}

bool NewPage()
{
    return IsOpen() && (Device().newPage() || Fail());
}

bool IsPrinting()
{
    return document != nullptr;
}

void EndDocument()
{
    if (document != nullptr && document->Pen.isActive() && !document->Pen.end()) {
        Fail();
    }
    ended = std::move(document);
}

std::string HandOverDocument()
{
    const std::unique_ptr<Document> whole = std::move(ended);
    return whole != nullptr ? Deliver(*whole) : std::string();
}

std::string PrintInOneGo(const std::function<bool(QPagedPaintDevice &)> &print)
{
    assert(!IsPrinting());
    BeginDocument();
    if (!print(Device())) {
        Fail();
    }
    EndDocument();
    return HandOverDocument();
}

std::string DecimalSign()
{
    return QLocale().decimalPoint().toStdString();
}

} // namespace kelvarine
