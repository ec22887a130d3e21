#pragma once

namespace skyvane {

/// What the program knows of the aircraft, one kind a record, stamped with a time, in a packed little-endian byte form.
///
/// A record is owned by its sensor and changes at that sensor's next Update: readers keep no pointer across frames. It
/// has no lock. Its byte form is what logs and datagrams carry; the carrier gives type and length.
class ISensorData {
public:
    /// The numbers stand in logs, configuration keys and datagrams.
    enum Type : int {
        GPS,
        Attitude,
        Heading,
        Acceleration,
        Position,
        Altitude,
        GroundSpeed,
        VerticalSpeed,
        TurnRate,
        AirSpeed,
        InsidePressure,
        OutsidePressure,
        InsideTemperature,
        OutsideTemperature,
        Raw,
        Traffic,
        Localizer,
        Glideslope,
        UATUplink,
        AngleOfAttack,
        ExtendedHeading
    };
    static constexpr int TypeCount = 21;
    /// Numbers from configurations and wires may be none.
    static constexpr bool isType(int number) { return number >= 0 && number < TypeCount; }

    virtual Type getType() = 0;
    /// The byte form in a buffer of the record's, valid until its next serialize or its end. From the second call on
    /// nothing is allocated unless the form has grown.
    virtual void* serialize(int* length) = 0;
    /// Takes the values from a byte form. A form shorter than the record's leaves the record as it was.
    virtual void deserialize(void* bytes, int length) = 0;
    /// Writes the record to standard output.
    virtual void Print() = 0;
    virtual ~ISensorData() = default;
};

} // namespace skyvane
