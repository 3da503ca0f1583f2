#include "files/wave_file.h"

#include "grid/little_endian.h"

#include <algorithm>
#include <optional>

namespace kelvarine {

namespace {

constexpr std::uint32_t PlainSamples = 1;
constexpr std::uint32_t FloatSamples = 3;
constexpr std::uint32_t ExtendedForm = 0xFFFE; // the kind of samples stands further back

constexpr std::size_t HeaderSize = 12;
constexpr std::size_t ChunkHeaderSize = 8;
constexpr std::size_t LeastFormSize = 16;
constexpr std::size_t ExtendedKindAt = 24;

// What a chunk of some name holds, as far as it is there.
std::optional<std::string_view> ChunkNamed(std::string_view bytes, std::string_view name)
{
    std::size_t place = HeaderSize;
    while (bytes.size() >= place + ChunkHeaderSize) {
        const std::size_t size = NumberAt<std::uint32_t>(bytes, place + 4);
        const std::size_t begin = place + ChunkHeaderSize;
        if (bytes.substr(place, 4) == name) {
            return bytes.substr(begin, size);
        }
        place = begin + size + size % 2; // chunks begin at even places
    }
    return std::nullopt;
}

std::optional<SampleForm> FormOf(std::uint32_t kind, std::uint32_t bits)
{
    if (kind == FloatSamples) {
        return bits == 32 ? std::optional(SampleForm::Float32) : std::nullopt;
    }
    if (kind != PlainSamples) {
        return std::nullopt;
    }
    switch (bits) {
    case 8:
        return SampleForm::Unsigned8;
    case 16:
        return SampleForm::Signed16;
    case 32:
        return SampleForm::Signed32;
    default:
        return std::nullopt;
    }
}

std::size_t SampleSize(SampleForm form)
{
    switch (form) {
    case SampleForm::Unsigned8:
        return 1;
    case SampleForm::Signed16:
        return 2;
    default:
        return 4;
    }
}

// The form of the samples, without samples.
std::optional<WaveSound> ReadForm(std::string_view chunk)
{
    if (chunk.size() < LeastFormSize) {
        return std::nullopt;
    }
    std::uint32_t kind = NumberAt<std::uint16_t>(chunk, 0);
    if (kind == ExtendedForm && chunk.size() >= ExtendedKindAt + 2) {
        kind = NumberAt<std::uint16_t>(chunk, ExtendedKindAt);
    }
    const std::uint32_t channels = NumberAt<std::uint16_t>(chunk, 2);
    const auto rate = NumberAt<std::uint32_t>(chunk, 4);
    const std::optional<SampleForm> form = FormOf(kind, NumberAt<std::uint16_t>(chunk, 14));
    if (!form || channels < 1 || channels > 8 || rate < 1000 || rate > 192000) {
        return std::nullopt;
    }
    return WaveSound{*form, static_cast<int>(rate), static_cast<int>(channels), {}};
}

} // namespace

bool ReadWave(std::string_view bytes, WaveSound &sound)
{
    if (!bytes.starts_with("RIFF") || bytes.size() < HeaderSize || bytes.substr(8, 4) != "WAVE") {
        return false;
    }
    std::optional<WaveSound> read = ReadForm(ChunkNamed(bytes, "fmt ").value_or(""));
    const std::string_view samples = ChunkNamed(bytes, "data").value_or("");
    if (!read) {
        return false;
    }
    const std::size_t frame = SampleSize(read->Form) * static_cast<std::size_t>(read->Channels);
    read->Samples = samples.substr(0, samples.size() / frame * frame);
    if (read->Samples.empty()) {
        return false;
    }
    sound = std::move(*read);
    return true;
}

std::size_t TakeSamples(const WaveSound &sound, std::size_t &place, bool loop, char *buffer,
                        std::size_t size)
{
    std::size_t taken = 0;
    while (taken < size) {
        if (place == sound.Samples.size() && loop) {
            place = 0;
        }
        const std::size_t piece = std::min(size - taken, sound.Samples.size() - place);
        if (piece == 0) {
            break;
        }
        std::copy_n(sound.Samples.begin() + static_cast<std::ptrdiff_t>(place), piece,
                    buffer + taken);
        place += piece;
        taken += piece;
    }
    return taken;
}

} // namespace kelvarine
