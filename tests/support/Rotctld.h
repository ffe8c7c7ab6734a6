#pragma once

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>

#include <netinet/in.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

/// A socket that listens on a free port of this machine.
class Listener
{
public:
    Listener() : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in place{};
        place.sin_family = AF_INET;
        place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof place;
        auto* const address = reinterpret_cast<sockaddr*>(&place);
        if (bind(m_socket, address, size) != 0 || listen(m_socket, 4) != 0 ||
            getsockname(m_socket, address, &size) != 0)
            throw std::runtime_error("no free port");
        port = ntohs(place.sin_port);
    }
    ~Listener() { close(m_socket); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    /// The next connection; -1 if there is none within a moment.
    int Accept() const
    {
        pollfd ready{m_socket, POLLIN, 0};
        return poll(&ready, 1, 20) > 0 ? accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC) : -1;
    }

    int port = 0;

private:
    int m_socket;
};

/// A port on which nobody listens.
inline int FreePort()
{
    return Listener().port;
}

/// Hamlib's rotctld with its dummy rotator, which turns 6 degrees a second from azimuth 0 and takes -180..450.
class Rotctld
{
public:
    explicit Rotctld(int wantedPort = FreePort()) : port(wantedPort)
    {
        const std::string number = std::to_string(port);
        m_process = fork();
        if (m_process == 0)
        {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            execlp("rotctld", "rotctld", "-m", "1", "-T", "127.0.0.1", "-t", number.c_str(), nullptr);
            _exit(127);
        }
        for (int i = 0; i < 600 && !Accepts() && waitpid(m_process, nullptr, WNOHANG) == 0; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        if (!Accepts())
            throw std::runtime_error("rotctld does not start; it is in the package libhamlib-utils");
    }
    ~Rotctld() { End(); }
    Rotctld(const Rotctld&) = delete;
    Rotctld& operator=(const Rotctld&) = delete;

    void End()
    {
        if (m_process <= 0)
            return;
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
        m_process = -1;
    }

    std::string Address() const { return "127.0.0.1:" + std::to_string(port); }

    const int port;

private:
    bool Accepts() const
    {
        const int client = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in place{};
        place.sin_family = AF_INET;
        place.sin_port = htons(static_cast<std::uint16_t>(port));
        place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        const bool accepts = connect(client, reinterpret_cast<sockaddr*>(&place), sizeof place) == 0;
        close(client);
        return accepts;
    }

    pid_t m_process = -1;
};

/// Stands in for a rotctld whose rotator, or which itself, is as a test wants it.
class FakeRotctld
{
    const Listener m_listener;

public:
    /// Answers a command, given without "+\\" and line end. kClose ends the connection, kForEver never ends.
    using Answer = std::function<std::string(const std::string& command)>;
    static constexpr const char* kClose = "close";
    static constexpr const char* kForEver = "for ever";

    /// A rotator that has an azimuth, takes a range and obeys.
    struct State
    {
        std::atomic<double> azimuth = 0.0;
        double min = -180.0;
        double max = 450.0;
        int code = 0; ///< with which orders are answered
    };

    explicit FakeRotctld(Answer answer) : m_answer(std::move(answer)), m_thread([this] { Serve(); }) {}
    FakeRotctld() : FakeRotctld([this](const std::string& command) { return Obey(command); }) {}
    ~FakeRotctld() { End(); }
    FakeRotctld(const FakeRotctld&) = delete;
    FakeRotctld& operator=(const FakeRotctld&) = delete;

    std::string Address() const { return "127.0.0.1:" + std::to_string(port); }

    /// Ends the connection and talks to nobody any more.
    void End()
    {
        m_ends = true;
        if (m_thread.joinable())
            m_thread.join();
    }

    std::string Obey(const std::string& command)
    {
        if (command == "dump_state")
            return "dump_state:\nMinimum Azimuth: " + std::to_string(state.min) +
                   "\nMaximum Azimuth: " + std::to_string(state.max) + "\ndone\nRPRT 0\n";
        positions += command == "get_pos";
        if (command == "get_pos")
            return "get_pos:\nAzimuth: " + std::to_string(state.azimuth) + "\nElevation: 0.00\nRPRT 0\n";
        lastOrder = command;
        ++orders;
        return command + ":\nRPRT " + std::to_string(state.code) + "\n";
    }

    State state;
    std::string lastOrder; ///< to be read when orders has changed
    std::atomic<int> orders = 0;
    std::atomic<int> positions = 0; ///< asked for
    std::atomic<int> connections = 0;
    const int port = m_listener.port;

private:
    void Serve()
    {
        while (!m_ends)
        {
            const int client = m_listener.Accept();
            if (client < 0)
                continue;
            ++connections;
            Talk(client);
            close(client);
        }
    }

    void Talk(int client)
    {
        std::string received;
        while (!m_ends)
        {
            pollfd ready{client, POLLIN, 0};
            char bytes[512];
            if (poll(&ready, 1, 20) == 0)
                continue;
            const ssize_t count = recv(client, bytes, sizeof bytes, 0);
            if (count <= 0)
                return;
            received.append(bytes, static_cast<std::size_t>(count));
            for (std::size_t end = 0; (end = received.find('\n')) != std::string::npos; received.erase(0, end + 1))
            {
                const std::string answer = m_answer(received.substr(2, end - 2));
                if (answer == kClose)
                    return;
                if (answer == kForEver)
                    return TalkForEver(client);
                send(client, answer.data(), answer.size(), MSG_NOSIGNAL);
            }
        }
    }

    void TalkForEver(int client)
    {
        const std::string line = "Azimuth: 41.5\n";
        while (!m_ends && (send(client, line.data(), line.size(), MSG_NOSIGNAL | MSG_DONTWAIT) > 0 || errno == EAGAIN))
            std::this_thread::yield();
    }

    Answer m_answer;
    std::atomic<bool> m_ends = false;
    std::thread m_thread;
};
