#include "chartmaker/inspect/InspectedSet.h"

#include "chart/elements/ElementFactory.h"
#include "core/bytes/ByteReader.h"

namespace skyvane {
namespace {

constexpr unsigned typeBytes = 4;

bool isDescription(const std::string& path) {
    const std::string ending = ".sci";
    return path.size() > ending.size() && path.compare(path.size() - ending.size(), ending.size(), ending) == 0;
}

std::string folderOf(const std::string& path, const SetDescription& description) {
    if (isDescription(path))
        return description.getFolder(path.substr(0, path.find_last_of('/') + 1));
    return path.size() > 1 && path.back() == '/' ? path.substr(0, path.size() - 1) : path;
}

} // namespace

InspectedSet::InspectedSet(const std::string& path)
    : isDescribed_(isDescription(path)), description_(isDescribed_ ? SetDescription::load(path) : SetDescription()),
      folder_(folderOf(path, description_)), files_(folder_) {}

std::string InspectedSet::getTrouble() const {
    if (isDescribed_ && description_.location.empty())
        return "is no description of a set that can be read";
    switch (files_.getState()) {
    case ElementFilesReader::State::Good:
        return files_.isCut() ? "its table of offsets ends before its elements do" : "";
    case ElementFilesReader::State::Missing:
        return std::string(ElementOffsetsFileName) + " or " + ElementsFileName + " is missing or can't be read";
    case ElementFilesReader::State::OtherVersion:
        return std::string(ElementOffsetsFileName) + " is of another version than " +
               std::to_string(ElementOffsetsVersion);
    case ElementFilesReader::State::DecreasingOffsets:
        return "its offsets decrease: nobody knows which element is which";
    }
    return {};
}

std::unique_ptr<IChartElement> InspectedSet::load(int index) const {
    if (index < 0 || index >= getCount() || !files_.read(index, record_) || record_.size() < typeBytes)
        return nullptr;
    std::unique_ptr<IChartElement> element =
        createChartElement(ByteReader(record_.data(), typeBytes).little<int32_t>());
    unsigned position = 0;
    const auto length = static_cast<unsigned>(record_.size()) - typeBytes;
    if (!element || !element->readFromBuffer(record_.data() + typeBytes, position, length))
        return nullptr;
    return element;
}

} // namespace skyvane
