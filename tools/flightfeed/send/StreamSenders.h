#pragma once

#include "flightfeed/send/IProtocolSender.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

/// Bytes for a reader of a serial port: a pseudo-terminal, with a link of a lasting name to it. What nobody reads in
/// time is lost, and nothing ever blocks.
class PseudoTerminalSender : public IDatagramSink {
public:
    /// The link replaces an older one of that name, but no file. Null, with the words in `error`, when that fails.
    static std::unique_ptr<PseudoTerminalSender> open(const std::string& link, std::string& error);
    ~PseudoTerminalSender() override;
    PseudoTerminalSender(const PseudoTerminalSender&) = delete;
    PseudoTerminalSender& operator=(const PseudoTerminalSender&) = delete;

    void send(const void* bytes, size_t count) override;

private:
    PseudoTerminalSender(int terminal, int line, std::string link);

    int terminal_;
    int line_; ///< Kept open, so that the line stays raw while no program has it open.
    std::string link_;
};

/// Bytes for all who connect to a TCP port of this computer. Who reads too slowly loses some, and nothing ever blocks.
class TcpServerSender : public IDatagramSink {
public:
    static std::unique_ptr<TcpServerSender> open(const std::string& host, int port, std::string& error);
    ~TcpServerSender() override;
    TcpServerSender(const TcpServerSender&) = delete;
    TcpServerSender& operator=(const TcpServerSender&) = delete;

    void send(const void* bytes, size_t count) override;

private:
    explicit TcpServerSender(int handle) : listener_(handle) {}
    void acceptAll();

    int listener_;
    std::vector<int> readers_;
};

} // namespace skyvane
