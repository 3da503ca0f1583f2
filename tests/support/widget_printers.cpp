#include "support/widget_printers.h"

#include "outside/printer.h"
#include "support/widget_modal.h"
#include "ui/outside/printer_qt.h"

#include <QComboBox>
#include <QPrintDialog>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <optional>
#include <unistd.h>

namespace kelvarine::testing {

namespace {

std::vector<PrinterDouble> installed;

// What a printer says of itself, as its system keeps it.
std::string DescriptionOf(const PrinterDouble &printer)
{
    constexpr int width = 612; // a letter in points
    constexpr int height = 792;
    const std::string low = std::to_string(printer.Margin);
    const std::string area = "\"" + low + " " + low + " " + std::to_string(width - printer.Margin) +
                             " " + std::to_string(height - printer.Margin) + "\"\n";
    return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
           "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"DOUBLE.PPD\"\n"
           "*Manufacturer: \"Double\"\n*Product: \"(Double)\"\n*ModelName: \"Double\"\n"
           "*ShortNickName: \"Double\"\n*NickName: \"Double\"\n*PSVersion: \"(3010) 0\"\n"
           "*LanguageLevel: \"3\"\n*ColorDevice: True\n*DefaultColorSpace: RGB\n"
           "*DefaultResolution: 600dpi\n"
           "*OpenUI *PageSize/Page Size: PickOne\n*DefaultPageSize: Letter\n"
           "*PageSize Letter/Letter: \"\"\n*CloseUI: *PageSize\n"
           "*OpenUI *PageRegion: PickOne\n*DefaultPageRegion: Letter\n"
           "*PageRegion Letter/Letter: \"\"\n*CloseUI: *PageRegion\n"
           "*DefaultImageableArea: Letter\n*ImageableArea Letter/Letter: " +
           area + "*DefaultPaperDimension: Letter\n*PaperDimension Letter/Letter: \"612 792\"\n";
}

// As the system's library has it; the toolkit gives them back to CupsFreeDests.
struct Destination {
    char *Name;
    char *Instance;
    int IsDefault;
    int OptionCount;
    void *Options;
};

Destination DestinationOf(std::size_t index)
{
    return {::strdup(installed[index].Name.c_str()), nullptr, index == 0 ? 1 : 0, 0, nullptr};
}

std::optional<std::size_t> IndexOf(const char *name)
{
    for (std::size_t k = 0; k < installed.size(); ++k) {
        if (installed[k].Name == name) {
            return k;
        }
    }
    return {};
}

Destination *AllocateDestinations(std::size_t count)
{
    return static_cast<Destination *>(std::calloc(count, sizeof(Destination)));
}

} // namespace

extern "C" {

int cupsGetDests(Destination **destinations)
{
    *destinations = AllocateDestinations(std::max<std::size_t>(1, installed.size()));
    for (std::size_t k = 0; k < installed.size(); ++k) {
        (*destinations)[k] = DestinationOf(k);
    }
    return static_cast<int>(installed.size());
}

Destination *cupsGetNamedDest(void * /*connection*/, const char *name, const char * /*instance*/)
{
    const std::optional<std::size_t> index = IndexOf(name);
    if (!index) {
        return nullptr;
    }
    Destination *destination = AllocateDestinations(1);
    *destination = DestinationOf(*index);
    return destination;
}

void cupsFreeDests(int count, Destination *destinations)
{
    for (int k = 0; k < count; ++k) {
        std::free(destinations[k].Name);
    }
    std::free(destinations);
}

// A file that the toolkit reads and deletes.
const char *cupsGetPPD(const char *name)
{
    static std::string path;
    const std::optional<std::size_t> index = IndexOf(name);
    if (!index) {
        return nullptr;
    }
    path = "/tmp/kelvarine-printer-XXXXXX";
    const int file = ::mkstemp(path.data());
    ::close(file);
    std::ofstream(path) << DescriptionOf(installed[*index]);
    return path.c_str();
}

} // extern "C"

namespace {

// The program's choice before a test.
QPrinter::OutputFormat usualFormat;
QPageLayout usualLayout;

} // namespace

PrintersInstalled::PrintersInstalled(std::vector<PrinterDouble> printers)
{
    usualFormat = ChosenPrinter().outputFormat();
    usualLayout = ChosenPrinter().pageLayout();
    installed = std::move(printers);
}

PrintersInstalled::~PrintersInstalled()
{
    installed.clear();
    ChosenPrinter().setOutputFormat(usualFormat);
    ChosenPrinter().setPageLayout(usualLayout);
}

bool ChooseInDialog(const std::string &name)
{
    bool chosen = false;
    const int dialogs =
        WhileModal<QPrintDialog>([&] { chosen = ChoosePrinter(); },
                                 [&](QPrintDialog &dialog) {
                                     auto *printers = dialog.findChild<QComboBox *>("printers");
                                     const int index =
                                         printers->findText(QString::fromStdString(name));
                                     EXPECT_GE(index, 0) << name;
                                     printers->setCurrentIndex(index);
                                     dialog.accept();
                                 });
    EXPECT_EQ(dialogs, 1);
    return chosen;
}

} // namespace kelvarine::testing
