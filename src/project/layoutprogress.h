#pragma once

#include <functional>

/// Tells in percents how far the senders of a project are read or written: each time a sender is done, and
/// within a sender by its ports.
class LayoutProgress
{
public:
    explicit LayoutProgress(std::function<void(int)> tell); ///< may be empty

    void Start(int senders);
    void NextSender();        ///< the one before is done
    void NextPort(int count); ///< of so many of this sender; the one before is done
    void End();               ///< the last sender is done

private:
    void TellSenders();
    void Tell(int percent);

    std::function<void(int)> m_tell;
    int m_senders = 0;
    int m_begun = 0; ///< senders
    int m_ports = 0; ///< begun of the last sender
    int m_told = 0;
};
