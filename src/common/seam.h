#pragma once

/// Where a lower room's questions reach whoever answers them: an abstract interface with harmless answers,
/// and the object that the frame installs over it.
template <class Lookup> class Seam
{
public:
    /// The installed object, or one that gives the harmless answers. Never null.
    static Lookup* Get()
    {
        static Lookup harmless;
        return m_installed ? m_installed : &harmless;
    }

    /// [keep] Null for none; the caller removes an object before destroying it.
    static void Install(Lookup* lookup) { m_installed = lookup; }

private:
    inline static Lookup* m_installed = nullptr;
};
