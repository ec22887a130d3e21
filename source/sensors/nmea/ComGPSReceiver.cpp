#include "sensors/nmea/ComGPSReceiver.h"

#include "core/time/Time.h"
#include "sensors/nmea/GpsTrust.h"

#include <algorithm>
#include <utility>

namespace skyvane {
namespace {

constexpr unsigned RetryMs = 1000;

} // namespace

ComGPSReceiver::ComGPSReceiver(std::string device, int bufferSize, unsigned timeoutMs, unsigned baudRate, double blur,
                               double minimalDelta)
    : device_(std::move(device)), timeoutMs_(timeoutMs), baudRate_(baudRate),
      buffer_(static_cast<size_t>(std::max(bufferSize, 1))),
      parser_(NMEA_Parser::GpAndGn, static_cast<int>(std::min(timeoutMs, 0x7fffffffu))),
      altitudes_(blur, minimalDelta, false), tracks_(blur, minimalDelta, true) {}

std::string ComGPSReceiver::getName() {
    return "GPS receiver: " + device_;
}

std::vector<ISensorData::Type> ComGPSReceiver::getSupportedDataTypes() {
    return gpsReceiverTypes();
}

bool ComGPSReceiver::isDataTypeSupported(ISensorData::Type type) {
    const auto types = gpsReceiverTypes();
    return std::find(types.begin(), types.end(), type) != types.end();
}

bool ComGPSReceiver::Update() {
    updated_ = false;
    const unsigned nowMs = MilliSecs();
    connectWhenDue(nowMs);
    if (!connected_)
        return false;
    const int count = socket_.recvData(buffer_.data(), static_cast<int>(buffer_.size()));
    if (count > 0)
        lastBytesMs_ = nowMs;
    for (int i = 0; i < count; ++i)
        updated_ = parser_.doStep(buffer_[static_cast<size_t>(i)]) || updated_;
    if (!updated_)
        return false;
    lastSentenceMs_ = nowMs;
    publish();
    return true;
}

/// The handle of a device that was pulled out stays open and silent.
void ComGPSReceiver::connectWhenDue(unsigned nowMs) {
    if (connected_ && TimeDiff(nowMs, lastBytesMs_) <= std::max(timeoutMs_, RetryMs))
        return;
    if (hasTried_ && TimeDiff(nowMs, lastTryMs_) < RetryMs)
        return;
    hasTried_ = true;
    lastTryMs_ = nowMs;
    lastBytesMs_ = nowMs;
    connected_ = socket_.connectSocket(device_ + ":" + std::to_string(baudRate_));
}

void ComGPSReceiver::publish() {
    gps_ = parser_.getGPSData();
    const unsigned stamp = gps_.timeStamp;
    const double seconds = stamp / 1000.0;
    if (gps_.altitudeAvailable)
        altitudes_.add(gps_.altitude, seconds);
    if (gps_.groundTrackAvailable)
        tracks_.add(gps_.groundTrack, seconds);
    altitude_ = Altitude_Data(gps_.altitude, stamp);
    heading_ = Heading_Data(gps_.groundTrack, stamp);
    position_ = Position_Data(gps_.longitude, gps_.latitude, stamp);
    groundSpeed_ = GroundSpeed_Data(gps_.groundSpeed, stamp);
    verticalSpeed_ = VerticalSpeed_Data(altitudes_.get(), stamp);
    turnRate_ = TurnRate_Data(tracks_.get(), stamp);
}

ISensorData* ComGPSReceiver::getData(ISensorData::Type type) {
    switch (type) {
    case ISensorData::GPS:
        return &gps_;
    case ISensorData::Heading:
        return &heading_;
    case ISensorData::Position:
        return &position_;
    case ISensorData::Altitude:
        return &altitude_;
    case ISensorData::GroundSpeed:
        return &groundSpeed_;
    case ISensorData::VerticalSpeed:
        return &verticalSpeed_;
    case ISensorData::TurnRate:
        return &turnRate_;
    default:
        return nullptr;
    }
}

ISensor::WarningLevel ComGPSReceiver::getWarning(ISensorData::Type type) {
    if (!connected_ || TimeDiff(MilliSecs(), lastSentenceMs_) >= timeoutMs_)
        return WRONG;
    return gpsTrust(gps_, type);
}

void ComGPSReceiver::Rate::add(double value, double seconds) {
    if (values_)
        return values_->addSample(value, seconds);
    rates_.emplace(0.0, seconds, nullptr, nullptr, minimalDelta_, blur_, false);
    values_.emplace(value, seconds, nullptr, &*rates_, minimalDelta_, blur_, isAngle_);
}

} // namespace skyvane
