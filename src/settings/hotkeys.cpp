#include "settings/hotkeys.h"

#include "common/debugline.h"
#include "common/texts.h"
#include "settings/configitems.h"

#include <QKeySequence>

namespace {

struct Default
{
    const char* operation;
    const char* hotkey;
    const char* description;
};

// Mode 1: keys of layout editing. Mode 2: keys of the running show, none of which changes the layout.
constexpr Default kDefaults[kHotkeyModes][kHotkeysInMode] = {
    {
        {"NewProject", "Ctrl+N", QT_TRANSLATE_NOOP("OrvanData", "新建项目")},
        {"OpenProject", "Ctrl+O", QT_TRANSLATE_NOOP("OrvanData", "打开项目")},
        {"SaveProject", "Ctrl+S", QT_TRANSLATE_NOOP("OrvanData", "保存项目")},
        {"SaveProjectAs", "Ctrl+Shift+S", QT_TRANSLATE_NOOP("OrvanData", "另存项目")},
        {"Undo", "Ctrl+Z", QT_TRANSLATE_NOOP("OrvanData", "撤销")},
        {"Redo", "Ctrl+Y", QT_TRANSLATE_NOOP("OrvanData", "重做")},
        {"Cut", "Ctrl+X", QT_TRANSLATE_NOOP("OrvanData", "剪切")},
        {"Copy", "Ctrl+C", QT_TRANSLATE_NOOP("OrvanData", "复制")},
        {"Paste", "Ctrl+V", QT_TRANSLATE_NOOP("OrvanData", "粘贴")},
        {"Delete", "Del", QT_TRANSLATE_NOOP("OrvanData", "删除")},
        {"SelectAll", "Ctrl+A", QT_TRANSLATE_NOOP("OrvanData", "全选")},
        {"Group", "Ctrl+G", QT_TRANSLATE_NOOP("OrvanData", "建立分组")},
        {"Ungroup", "Ctrl+Shift+G", QT_TRANSLATE_NOOP("OrvanData", "取消分组")},
        {"AutoConnect", "Ctrl+L", QT_TRANSLATE_NOOP("OrvanData", "自动连线")},
        {"ClearConnection", "Ctrl+Shift+L", QT_TRANSLATE_NOOP("OrvanData", "清除连线")},
        {"ZoomIn", "Ctrl++", QT_TRANSLATE_NOOP("OrvanData", "放大")},
        {"ZoomOut", "Ctrl+-", QT_TRANSLATE_NOOP("OrvanData", "缩小")},
        {"FitView", "Ctrl+0", QT_TRANSLATE_NOOP("OrvanData", "适应窗口")},
        {"ShowGrid", "Ctrl+'", QT_TRANSLATE_NOOP("OrvanData", "显示网格")},
        {"LockPort", "Ctrl+K", QT_TRANSLATE_NOOP("OrvanData", "锁定输出口")},
    },
    {
        {"BrightnessUp", "Ctrl+Up", QT_TRANSLATE_NOOP("OrvanData", "增加亮度")},
        {"BrightnessDown", "Ctrl+Down", QT_TRANSLATE_NOOP("OrvanData", "降低亮度")},
        {"BlackOut", "Ctrl+B", QT_TRANSLATE_NOOP("OrvanData", "黑屏")},
        {"Freeze", "Ctrl+F", QT_TRANSLATE_NOOP("OrvanData", "冻结画面")},
        {"NormalPicture", "Ctrl+Home", QT_TRANSLATE_NOOP("OrvanData", "正常显示")},
        {"PreviousSender", "Ctrl+PgUp", QT_TRANSLATE_NOOP("OrvanData", "上一个主控")},
        {"NextSender", "Ctrl+PgDown", QT_TRANSLATE_NOOP("OrvanData", "下一个主控")},
        {"TestRed", "Alt+R", QT_TRANSLATE_NOOP("OrvanData", "红色测试")},
        {"TestGreen", "Alt+G", QT_TRANSLATE_NOOP("OrvanData", "绿色测试")},
        {"TestBlue", "Alt+B", QT_TRANSLATE_NOOP("OrvanData", "蓝色测试")},
        {"TestWhite", "Alt+W", QT_TRANSLATE_NOOP("OrvanData", "白色测试")},
        {"TestGrid", "Alt+L", QT_TRANSLATE_NOOP("OrvanData", "网格测试")},
        {"Preset1", "Ctrl+1", QT_TRANSLATE_NOOP("OrvanData", "预案1")},
        {"Preset2", "Ctrl+2", QT_TRANSLATE_NOOP("OrvanData", "预案2")},
        {"Preset3", "Ctrl+3", QT_TRANSLATE_NOOP("OrvanData", "预案3")},
        {"Preset4", "Ctrl+4", QT_TRANSLATE_NOOP("OrvanData", "预案4")},
        {"Preset5", "Ctrl+5", QT_TRANSLATE_NOOP("OrvanData", "预案5")},
        {"Preset6", "Ctrl+6", QT_TRANSLATE_NOOP("OrvanData", "预案6")},
        {"Preset7", "Ctrl+7", QT_TRANSLATE_NOOP("OrvanData", "预案7")},
        {"Preset8", "Ctrl+8", QT_TRANSLATE_NOOP("OrvanData", "预案8")},
    },
};

} // namespace

HotkeyTable GetDefaultHotkeys()
{
    HotkeyTable hotkeys;
    for (size_t mode = 0; mode < kHotkeyModes; ++mode) {
        for (size_t i = 0; i < kHotkeysInMode; ++i) {
            const Default& standard = kDefaults[mode][i];
            hotkeys[mode][i] = {true, QLatin1String(standard.operation), QLatin1String(standard.hotkey),
                                Texts::tr(standard.description)};
        }
    }
    return hotkeys;
}

bool NormalizeHotkey(QString* hotkey)
{
    const QKeySequence keys = QKeySequence::fromString(*hotkey, QKeySequence::PortableText);
    for (int i = 0; i < keys.count(); ++i) {
        if ((keys[uint(i)] & ~uint(Qt::KeyboardModifierMask)) == Qt::Key_unknown)
            return false;
    }
    if (keys.isEmpty() && !hotkey->trimmed().isEmpty())
        return false;
    *hotkey = keys.toString(QKeySequence::PortableText);
    return true;
}

QDebug operator<<(QDebug debug, const SHotkey& hotkey)
{
    return DebugLine(debug, "SHotkey(", hotkey.operation, ": ", hotkey.hotkey,
                     hotkey.enable ? ")" : ", off)");
}
