<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>OrvanData</name>
    <message>
        <source>元素嵌套过深。</source>
        <translation>Elements are nested too deep.</translation>
    </message>
    <message>
        <source>不接受文档类型声明。</source>
        <translation>Document type declarations are not accepted.</translation>
    </message>
    <message>
        <source>不是有效的XML（第%1行）：%2。</source>
        <translation>Not valid XML (line %1): %2.</translation>
    </message>
    <message>
        <source>不支持文件的编码。</source>
        <translation>The encoding of the file is not supported.</translation>
    </message>
    <message>
        <source>文件含有与其编码不符的字符。</source>
        <translation>The file holds characters that are not of its encoding.</translation>
    </message>
    <message>
        <source>标记过长。</source>
        <translation>A tag is too long.</translation>
    </message>
    <message>
        <source>文件无法读取。</source>
        <translation>The file could not be read.</translation>
    </message>
    <message>
        <source>文件过大。</source>
        <translation>The file is too large.</translation>
    </message>
    <message>
        <source>不是参数文件。</source>
        <translation>Not a parameter file.</translation>
    </message>
    <message>
        <source>找不到主控。</source>
        <translation>The processor was not found.</translation>
    </message>
    <message>
        <source>不是该类型的参数文件。</source>
        <translation>Not a parameter file of this kind.</translation>
    </message>
    <message>
        <source>主控%1未找到对应IP的主控参数。</source>
        <translation>No parameters for the IP address of processor %1 were found.</translation>
    </message>
    <message>
        <source>不可导入，无法匹配对应IP的主控参数。</source>
        <translation>Cannot import: no processor parameters match the IP addresses.</translation>
    </message>
    <message>
        <source>文件中没有主控参数。</source>
        <translation>The file holds no processor parameters.</translation>
    </message>
    <message>
        <source>导入失败，无法导入不同类型主控的参数。</source>
        <translation>Import failed: parameters of a different processor type cannot be imported.</translation>
    </message>
    <message>
        <source>导入失败。</source>
        <translation>Import failed.</translation>
    </message>
    <message>
        <source>不是这种布局文件。</source>
        <translation>Not a layout file of this kind.</translation>
    </message>
    <message>
        <source>没有这个主控。</source>
        <translation>There is no such processor.</translation>
    </message>
    <message>
        <source>没有这个输出口。</source>
        <translation>There is no such output port.</translation>
    </message>
    <message>
        <source>跳过重复的分组%1</source>
        <translation>repeated group %1 passed over</translation>
    </message>
    <message>
        <source>分组嵌套过深，更深的分组被跳过</source>
        <translation>groups are nested too deep; deeper ones passed over</translation>
    </message>
    <message>
        <source>%1过多，最多%2个，文件未保存。</source>
        <translation>Too many %1, at most %2; the file was not saved.</translation>
    </message>
    <message>
        <source>%1：文件声明%2个，实有%3个</source>
        <translation>%1: the file states %2, holds %3</translation>
    </message>
    <message>
        <source>缺少参数文件“%1”</source>
        <translation>parameter file &quot;%1&quot; is missing</translation>
    </message>
    <message>
        <source>另一个程序正在使用项目工作文件夹。</source>
        <translation>Another program is using the project work folder.</translation>
    </message>
    <message>
        <source>项目文件不能是项目工作文件夹里的临时文件。</source>
        <translation>The project file cannot be a temporary file of the project work folder.</translation>
    </message>
    <message>
        <source>没有给出文件。</source>
        <translation>No file was given.</translation>
    </message>
    <message>
        <source>不是项目文件。</source>
        <translation>Not a project file.</translation>
    </message>
    <message>
        <source>压缩包里没有“project/new.prj”。</source>
        <translation>The archive holds no &quot;project/new.prj&quot;.</translation>
    </message>
    <message>
        <source>此文件需要版本%1，本程序尚不支持。</source>
        <translation>This file needs version %1, which this program does not support yet.</translation>
    </message>
    <message>
        <source>选取</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>主控 %1</source>
        <translation>Processor %1</translation>
    </message>
    <message>
        <source>,输出口 %1 </source>
        <translation>, output port %1 </translation>
    </message>
    <message>
        <source>选择主控为备份主控，请先取消备份。</source>
        <translation>The selected processor is a backup processor. Cancel the backup first.</translation>
    </message>
    <message>
        <source>选择的主控存在备份主控，请先取消备份。</source>
        <translation>The selected processor has a backup processor. Cancel the backup first.</translation>
    </message>
    <message>
        <source>主控存在输出口被锁住，您确定要删除选择的主控吗？</source>
        <translation>A port of the processor is locked. Delete the selected processor anyway?</translation>
    </message>
    <message>
        <source>您确定要删除选择的主控吗？</source>
        <translation>Delete the selected processor?</translation>
    </message>
    <message>
        <source>跳过元素“%1”</source>
        <translation>element &quot;%1&quot; passed over</translation>
    </message>
    <message>
        <source>另有%1处</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>系统缺少GBK编码</source>
        <translation>The system has no GBK codec</translation>
    </message>
    <message>
        <source>不是有效的压缩包: %1</source>
        <translation>Not a valid archive: %1</translation>
    </message>
    <message>
        <source>压缩包内容过大: %1</source>
        <translation>The archive holds too much: %1</translation>
    </message>
    <message>
        <source>压缩包条目名称无效</source>
        <translation>The name of an archive entry is not valid</translation>
    </message>
    <message>
        <source>压缩包条目无法解压: %1</source>
        <translation>Archive entry could not be unpacked: %1</translation>
    </message>
    <message>
        <source>文件夹不存在: %1</source>
        <translation>Folder does not exist: %1</translation>
    </message>
    <message>
        <source>新建项目</source>
        <translation>New project</translation>
    </message>
    <message>
        <source>打开项目</source>
        <translation>Open project</translation>
    </message>
    <message>
        <source>保存项目</source>
        <translation>Save project</translation>
    </message>
    <message>
        <source>另存项目</source>
        <translation>Save project as</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>建立分组</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>取消分组</source>
        <translation>Ungroup</translation>
    </message>
    <message>
        <source>自动连线</source>
        <translation>Connect automatically</translation>
    </message>
    <message>
        <source>清除连线</source>
        <translation>Clear connections</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>缩小</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>适应窗口</source>
        <translation>Fit to window</translation>
    </message>
    <message>
        <source>显示网格</source>
        <translation>Show grid</translation>
    </message>
    <message>
        <source>锁定输出口</source>
        <translation>Lock output port</translation>
    </message>
    <message>
        <source>增加亮度</source>
        <translation>Increase brightness</translation>
    </message>
    <message>
        <source>降低亮度</source>
        <translation>Decrease brightness</translation>
    </message>
    <message>
        <source>黑屏</source>
        <translation>Blackout</translation>
    </message>
    <message>
        <source>冻结画面</source>
        <translation>Freeze picture</translation>
    </message>
    <message>
        <source>正常显示</source>
        <translation>Normal display</translation>
    </message>
    <message>
        <source>上一个主控</source>
        <translation>Previous processor</translation>
    </message>
    <message>
        <source>下一个主控</source>
        <translation>Next processor</translation>
    </message>
    <message>
        <source>红色测试</source>
        <translation>Red test</translation>
    </message>
    <message>
        <source>绿色测试</source>
        <translation>Green test</translation>
    </message>
    <message>
        <source>蓝色测试</source>
        <translation>Blue test</translation>
    </message>
    <message>
        <source>白色测试</source>
        <translation>White test</translation>
    </message>
    <message>
        <source>网格测试</source>
        <translation>Grid test</translation>
    </message>
    <message>
        <source>预案1</source>
        <translation>Preset 1</translation>
    </message>
    <message>
        <source>预案2</source>
        <translation>Preset 2</translation>
    </message>
    <message>
        <source>预案3</source>
        <translation>Preset 3</translation>
    </message>
    <message>
        <source>预案4</source>
        <translation>Preset 4</translation>
    </message>
    <message>
        <source>预案5</source>
        <translation>Preset 5</translation>
    </message>
    <message>
        <source>预案6</source>
        <translation>Preset 6</translation>
    </message>
    <message>
        <source>预案7</source>
        <translation>Preset 7</translation>
    </message>
    <message>
        <source>预案8</source>
        <translation>Preset 8</translation>
    </message>
    <message>
        <source>另一个程序正在写入该文件。</source>
        <translation>Another program is writing the file.</translation>
    </message>
    <message>
        <source>文件中的元素过多。</source>
        <translation>The file has too many elements.</translation>
    </message>
    <message>
        <source>文字过长。</source>
        <translation>A text is too long.</translation>
    </message>
    <message>
        <source>元素的属性过多。</source>
        <translation>An element has too many attributes.</translation>
    </message>
    <message>
        <source>无法在项目文件旁创建锁文件。</source>
        <translation>The lock file beside the project file could not be created.</translation>
    </message>
    <message>
        <source>项目正在被“%1”（%2，进程%3）编辑。</source>
        <translation>The project is being edited by &quot;%1&quot; (%2, process %3).</translation>
    </message>
    <message>
        <source>内容超过%1 MiB，文件未保存。</source>
        <translation>The content is larger than %1 MiB; the file was not saved.</translation>
    </message>
    <message>
        <source>“%1”的文字超过%2 MiB，文件未保存。</source>
        <translation>The text of &quot;%1&quot; is longer than %2 MiB; the file was not saved.</translation>
    </message>
    <message>
        <source>参数文件“%1”无法读取：%2</source>
        <translation>parameter file &quot;%1&quot; cannot be read: %2</translation>
    </message>
    <message>
        <source>参数文件“%1”无法保存：%2</source>
        <translation>parameter file &quot;%1&quot; cannot be saved: %2</translation>
    </message>
    <message>
        <source>参数文件“%1”无法放入产品库</source>
        <translation>parameter file &quot;%1&quot; cannot be put into the product library</translation>
    </message>
    <message>
        <source>项目文件没有保存：%1</source>
        <translation>The project file was not saved: %1</translation>
    </message>
    <message>
        <source>%1过多，最多%2个，文件未读取。</source>
        <translation>Too many %1, at most %2; the file was not read.</translation>
    </message>
    <message>
        <source>内容不完整</source>
        <translation>the content is not complete</translation>
    </message>
    <message>
        <source>标签不匹配</source>
        <translation>tags do not match</translation>
    </message>
    <message>
        <source>属性重复</source>
        <translation>an attribute stands twice</translation>
    </message>
    <message>
        <source>根元素之后还有内容</source>
        <translation>something follows the root element</translation>
    </message>
    <message>
        <source>引用无效</source>
        <translation>a reference is not valid</translation>
    </message>
    <message>
        <source>内存不足</source>
        <translation>there is not enough memory</translation>
    </message>
    <message>
        <source>语法错误</source>
        <translation>syntax error</translation>
    </message>
    <message>
        <source>主控</source>
        <translation>processors</translation>
    </message>
    <message>
        <source>输出口</source>
        <translation>output ports</translation>
    </message>
    <message>
        <source>箱体</source>
        <translation>cabinets</translation>
    </message>
    <message>
        <source>主控分组</source>
        <translation>processor groups</translation>
    </message>
    <message>
        <source>伽马值</source>
        <translation>gamma values</translation>
    </message>
    <message>
        <source>参数文件</source>
        <translation>parameter files</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>groups</translation>
    </message>
    <message>
        <source>无法读取“%1”：%2</source>
        <translation>&quot;%1&quot; cannot be read: %2</translation>
    </message>
    <message>
        <source>无法写入“%1”。</source>
        <translation>&quot;%1&quot; cannot be written.</translation>
    </message>
    <message>
        <source>无法写入“%1”：%2</source>
        <translation>&quot;%1&quot; cannot be written: %2</translation>
    </message>
    <message>
        <source>无法创建文件夹“%1”：%2</source>
        <translation>The folder &quot;%1&quot; cannot be made: %2</translation>
    </message>
    <message>
        <source>“%1”不是普通文件。</source>
        <translation>&quot;%1&quot; is not a regular file.</translation>
    </message>
</context>
</TS>
