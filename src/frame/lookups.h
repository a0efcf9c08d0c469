#pragma once

/// Answers what the lower rooms ask from the six objects, as far as these exist.
void InstallLookups();
void RemoveLookups();
