#include "sensors/log/LogFile.h"

#include "core/log/Logger.h"
#include "sensors/SensorConfig.h"

namespace skyvane {
LogFile::LogFile(const std::string& path) : index_(calculateLogIndex(path)), file_(path), types_(allDataTypes()) {
    // Nobody records over a log that plays.
    file_.guard();
    LogHeader header;
    if (!header.read(file_))
        return;
    logText("indexOffset: " + std::to_string(header.indexOffset) + "\n", Logger::ToConsole);
    if (header.version > LogVersion || header.indexOffset == 0)
        return;
    types_ = header.types;
    if (index_.samples.empty() && !index_.read(file_, header))
        logText("The log " + path + " has no usable index: it plays nothing.\n");
}

bool LogFile::read(size_t sample, Record& record) {
    const uint64_t place = index_.samples[sample].offset;
    const uint8_t* bytes = file_.at(place, LogRecordHeader::Bytes);
    if (!bytes)
        return false;
    const LogRecordHeader header = LogRecordHeader::read(bytes);
    if (header.type >= ISensorData::TypeCount || header.length > LogLargestRecord)
        return false;
    record.type = static_cast<ISensorData::Type>(header.type);
    record.length = header.length;
    record.form = file_.at(place + LogRecordHeader::Bytes, header.length);
    return record.form != nullptr;
}

} // namespace skyvane
