#pragma once

/// Keeps the object that answers the questions of a lower room. `Lookup` is an abstract class with harmless
/// answers; the frame installs an object that knows better.
template <class Lookup> class Seam
{
public:
    /// The installed object, else one that gives the harmless answers. Never null.
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
