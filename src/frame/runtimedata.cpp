#include "frame/runtimedata.h"

#include "layout/projectundoredo.h"
#include "products/productdirectoryset.h"
#include "settings/designbackground.h"

CRuntimeData::CRuntimeData()
    : m_products(std::make_unique<CProductDirectorySet>()), m_history(std::make_unique<CProjectUndoRedo>()),
      m_designBackground(std::make_unique<CDesignBackground>())
{}

CRuntimeData::~CRuntimeData() = default;
