<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BlockDialog</name>
    <message>
        <source>Add a block of cabinets</source>
        <translation>添加箱体块</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列数</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行数</translation>
    </message>
    <message>
        <source>Width of a cabinet</source>
        <translation>箱体宽度</translation>
    </message>
    <message>
        <source>Height of a cabinet</source>
        <translation>箱体高度</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>&amp;Columns and rows:</source>
        <translation>列数和行数(&amp;C)：</translation>
    </message>
    <message>
        <source>Cabinet &amp;size in pixels:</source>
        <translation>箱体尺寸，像素(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Left and top in pixels:</source>
        <translation>左上角位置，像素(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>输出口(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1，%2 至 %3</translation>
    </message>
    <message>
        <source>Port %1</source>
        <translation>输出口%1</translation>
    </message>
    <message>
        <source>Every port is hidden, locked or a backup. Open the one that the block is for.</source>
        <translation>所有输出口都已隐藏、锁定或作为备份。请先打开要放置箱体的输出口。</translation>
    </message>
    <message>
        <source>%1 cabinets, %2 × %3 pixels. Port %4 is then %5 full.</source>
        <translation>%1个箱体，%2 × %3像素。此后输出口%4的负载为%5。</translation>
    </message>
    <message>
        <source>Part of it lies beyond the canvas.</source>
        <translation>有一部分超出画布。</translation>
    </message>
    <message>
        <source>Pro&amp;duct:</source>
        <translation>产品(&amp;D)：</translation>
    </message>
    <message>
        <source>&amp;Receiving cards:</source>
        <translation>接收卡(&amp;R)：</translation>
    </message>
    <message>
        <source>Plain size</source>
        <translation>仅尺寸</translation>
    </message>
    <message>
        <source>A product of the library, with its parameter file, or a size alone</source>
        <translation>产品库中的产品（带参数文件），或只有尺寸</translation>
    </message>
    <message>
        <source>Scan a&amp;gain</source>
        <translation>重新扫描(&amp;G)</translation>
    </message>
    <message>
        <source>Look for products in %1 again</source>
        <translation>重新在%1中查找产品</translation>
    </message>
</context>
<context>
    <name>CabinetsPage</name>
    <message>
        <source>Selected:</source>
        <translation>已选择：</translation>
    </message>
    <message>
        <source>Cabinets</source>
        <translation>箱体</translation>
    </message>
    <message>
        <source>Of all that is selected, in pixels of the canvas: all move together</source>
        <translation>所选全部箱体的位置，单位为画布像素；全部一起移动</translation>
    </message>
    <message>
        <source>Of each cabinet, 1 to %1 pixels; rows and columns stay together</source>
        <translation>每个箱体的尺寸，1至%1像素；行和列保持相接</translation>
    </message>
    <message>
        <source>Degrees, clockwise. What is turned alike turns as one about its middle, else each cabinet about its own.</source>
        <translation>度，顺时针。角度相同的箱体整体绕共同中心旋转，否则每个箱体绕各自的中心旋转。</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>编号：</translation>
    </message>
    <message>
        <source>Place in the chain of the port</source>
        <translation>在输出口连线中的序号</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>输出口：</translation>
    </message>
    <message>
        <source>Edit, Move to port puts them on another</source>
        <translation>用“编辑”菜单中的“移至输出口”可换到另一个输出口</translation>
    </message>
    <message>
        <source>Receiving cards:</source>
        <translation>接收卡：</translation>
    </message>
    <message>
        <source>Across and down, in each cabinet</source>
        <translation>每个箱体内横向和纵向的数量</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>多个值</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左：</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>上：</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>宽度：</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度：</translation>
    </message>
    <message>
        <source>Angle:</source>
        <translation>角度：</translation>
    </message>
</context>
<context>
    <name>CardsBox</name>
    <message>
        <source>Receiving cards across</source>
        <translation>横向接收卡数</translation>
    </message>
    <message>
        <source>Receiving cards down</source>
        <translation>纵向接收卡数</translation>
    </message>
    <message>
        <source>&amp;There and back</source>
        <translation>蛇形往返(&amp;T)</translation>
    </message>
    <message>
        <source>Wiring of the receiving cards</source>
        <translation>接收卡的走线</translation>
    </message>
    <message>
        <source>The way of the chain through the cards of a cabinet</source>
        <translation>连线经过箱体内各接收卡的顺序</translation>
    </message>
    <message>
        <source>Off: each line of cards begins at the same side</source>
        <translation>关闭时，每行或每列接收卡都从同一侧开始</translation>
    </message>
    <message>
        <source>%1; at most %2 in a cabinet</source>
        <translation>%1；一个箱体最多%2张</translation>
    </message>
</context>
<context>
    <name>ChainActions</name>
    <message>
        <source>&amp;Clear numbers</source>
        <translation>清除编号(&amp;C)</translation>
    </message>
    <message>
        <source>Take the numbers of all cabinets of the current port away</source>
        <translation>清除当前输出口所有箱体的编号</translation>
    </message>
    <message>
        <source>Rows from the top left</source>
        <translation>按行，从左上开始</translation>
    </message>
    <message>
        <source>Rows from the top right</source>
        <translation>按行，从右上开始</translation>
    </message>
    <message>
        <source>Rows from the bottom right</source>
        <translation>按行，从右下开始</translation>
    </message>
    <message>
        <source>Rows from the bottom left</source>
        <translation>按行，从左下开始</translation>
    </message>
    <message>
        <source>Columns from the top left</source>
        <translation>按列，从左上开始</translation>
    </message>
    <message>
        <source>Columns from the top right</source>
        <translation>按列，从右上开始</translation>
    </message>
    <message>
        <source>Columns from the bottom right</source>
        <translation>按列，从右下开始</translation>
    </message>
    <message>
        <source>Columns from the bottom left</source>
        <translation>按列，从左下开始</translation>
    </message>
    <message>
        <source>Number all cabinets of the current port: %1</source>
        <translation>为当前输出口的所有箱体编号：%1</translation>
    </message>
</context>
<context>
    <name>DesignView</name>
    <message>
        <source>Wall</source>
        <translation>屏体</translation>
    </message>
</context>
<context>
    <name>DocumentController</name>
    <message>
        <source>Port %1 is a backup: it shows what its source shows.</source>
        <translation>输出口%1是备份，显示内容与其源输出口相同。</translation>
    </message>
    <message>
        <source>There is no sender yet. Add one first.</source>
        <translation>还没有主控。请先添加一个。</translation>
    </message>
    <message>
        <source>A port holds at most %1 cabinets.</source>
        <translation>一个输出口最多有%1个箱体。</translation>
    </message>
    <message>
        <source>It would reach beyond %1 × %2 pixels, the largest canvas there is.</source>
        <translation>将超出最大画布%1 × %2像素。</translation>
    </message>
    <message>
        <source>Port %1 has no cabinets to number.</source>
        <translation>输出口%1没有可编号的箱体。</translation>
    </message>
    <message>
        <source>Port %1 is locked. Unlock it first.</source>
        <translation>输出口%1已锁定。请先解锁。</translation>
    </message>
    <message>
        <source>Port %1 is hidden. Show it first.</source>
        <translation>输出口%1已隐藏。请先显示。</translation>
    </message>
    <message>
        <source>Click the numbered cabinet first that it is to come behind.</source>
        <translation>请先单击一个已编号的箱体，再插入到它之后。</translation>
    </message>
    <message>
        <source>A group holds cabinets of one port. Select some of one port alone.</source>
        <translation>一个分组只能包含同一输出口的箱体。请只选择一个输出口的箱体。</translation>
    </message>
    <message>
        <source>Select two cabinets or groups at least.</source>
        <translation>请至少选择两个箱体或分组。</translation>
    </message>
    <message>
        <source>No selected cabinet is in a group.</source>
        <translation>所选箱体都不在分组中。</translation>
    </message>
    <message>
        <source>Only a part of a group is selected; a block is one too. Select all of it, or ungroup it.</source>
        <translation>只选中了某个分组的一部分（添加的箱体块也是分组）。请选中整个分组，或取消分组。</translation>
    </message>
</context>
<context>
    <name>EditActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Take back the last edit</source>
        <translation>撤销上一步操作</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Bring back what was undone</source>
        <translation>恢复已撤销的操作</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete the selected cabinets; their chains close up</source>
        <translation>删除所选箱体，编号自动接续</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Select the cabinets of all ports that are shown and not locked</source>
        <translation>选择所有已显示且未锁定的输出口的箱体</translation>
    </message>
    <message>
        <source>Select no cabinet</source>
        <translation>取消选择所有箱体</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>撤销(&amp;U)：%1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>重做(&amp;R)：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Place what was copied on the current port</source>
        <translation>把复制的内容放到当前输出口</translation>
    </message>
    <message>
        <source>&amp;Move to port</source>
        <translation>移至输出口(&amp;M)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>Copy the selected cabinets and delete them</source>
        <translation>复制所选箱体并将其删除</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the selected cabinets, with groups that are wholly selected</source>
        <translation>复制所选箱体，以及完整选择的分组</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>建立分组(&amp;G)</translation>
    </message>
    <message>
        <source>Make one group of the selected cabinets and groups of a port</source>
        <translation>把一个输出口上所选的箱体和分组合成一个分组</translation>
    </message>
    <message>
        <source>U&amp;ngroup</source>
        <translation>取消分组(&amp;N)</translation>
    </message>
    <message>
        <source>Take the outermost groups of the selected cabinets apart</source>
        <translation>拆开所选箱体的最外层分组</translation>
    </message>
    <message>
        <source>Select gr&amp;oup</source>
        <translation>选择分组(&amp;O)</translation>
    </message>
    <message>
        <source>Select all of the groups that the selected cabinets are in</source>
        <translation>选择所选箱体所在分组的全部箱体</translation>
    </message>
    <message>
        <source>&amp;Select none</source>
        <translation>取消选择(&amp;S)</translation>
    </message>
    <message>
        <source>Port %1</source>
        <translation>输出口%1</translation>
    </message>
    <message>
        <source>Give the selected cabinets to another port of the sender</source>
        <translation>把选中的箱体移至此主控的另一个输出口</translation>
    </message>
</context>
<context>
    <name>ExchangeActions</name>
    <message>
        <source>What has that name is no file. Choose another name.</source>
        <translation>同名的不是文件。请换一个名称。</translation>
    </message>
    <message>
        <source>Try another name or folder. %1</source>
        <translation>请换一个名称或文件夹。%1</translation>
    </message>
    <message>
        <source>Drawing the sheets</source>
        <translation>正在绘制施工图册</translation>
    </message>
    <message>
        <source>Sheets for the crew: a cover, and pages for each sender and port, on %1</source>
        <translation>施工图册：封面以及每个主控和输出口的页面，纸张%1</translation>
    </message>
    <message>
        <source>&amp;Drawing…</source>
        <translation>图纸(&amp;D)…</translation>
    </message>
    <message>
        <source>Draw the current sender as it is seen from the front</source>
        <translation>绘制当前主控的正视图</translation>
    </message>
    <message>
        <source>Drawing from &amp;behind…</source>
        <translation>背视图纸(&amp;B)…</translation>
    </message>
    <message>
        <source>Draw the current sender as it is seen from behind</source>
        <translation>绘制当前主控的背视图</translation>
    </message>
    <message>
        <source>Sheets on A&amp;4…</source>
        <translation>A4施工图册(&amp;4)…</translation>
    </message>
    <message>
        <source>Sheets on A&amp;3…</source>
        <translation>A3施工图册(&amp;3)…</translation>
    </message>
    <message>
        <source>Sheets on &amp;Letter…</source>
        <translation>Letter施工图册(&amp;L)…</translation>
    </message>
    <message>
        <source>&amp;Cabinet list…</source>
        <translation>箱体清单(&amp;C)…</translation>
    </message>
    <message>
        <source>List all cabinets of the project, for a spreadsheet</source>
        <translation>列出项目的所有箱体，供电子表格使用</translation>
    </message>
    <message>
        <source>Cable &amp;schedule…</source>
        <translation>线缆清单(&amp;S)…</translation>
    </message>
    <message>
        <source>List all cables of the project in chain order</source>
        <translation>按连接顺序列出项目的所有线缆</translation>
    </message>
    <message>
        <source>Layout of the s&amp;ender…</source>
        <translation>主控布局(&amp;E)…</translation>
    </message>
    <message>
        <source>Write the current sender&apos;s layout to a file of its own, for other projects</source>
        <translation>把当前主控的布局写入单独的文件，供其他项目使用</translation>
    </message>
    <message>
        <source>Layout of the &amp;port…</source>
        <translation>输出口布局(&amp;P)…</translation>
    </message>
    <message>
        <source>Write the current port&apos;s layout to a file of its own, for other projects</source>
        <translation>把当前输出口的布局写入单独的文件，供其他项目使用</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>导出(&amp;E)</translation>
    </message>
    <message>
        <source>Write drawings, sheets, lists or layouts for others</source>
        <translation>写出供他人使用的图纸、施工图册、清单或布局</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>导入(&amp;I)</translation>
    </message>
    <message>
        <source>Replace a layout by that of a file from another project</source>
        <translation>用其他项目的文件中的布局替换当前布局</translation>
    </message>
    <message>
        <source>Replace the layout of the current port by that of a file</source>
        <translation>用文件中的布局替换当前输出口的布局</translation>
    </message>
    <message>
        <source>Replace the layout of the current sender by that of a file</source>
        <translation>用文件中的布局替换当前主控的布局</translation>
    </message>
    <message>
        <source>There is no sender yet. Add one first.</source>
        <translation>还没有主控。请先添加一个。</translation>
    </message>
    <message>
        <source>Its name has to end in .%1.</source>
        <translation>文件名必须以 .%1 结尾。</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>已导出：%1</translation>
    </message>
    <message>
        <source>%1 was not written.

%2</source>
        <translation>%1没有写入。

%2</translation>
    </message>
    <message>
        <source>Layouts (*.xml);;All files (*)</source>
        <translation>布局 (*.xml);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Keep the ports that are locked as they are?</source>
        <translation>锁定的输出口是否保持不变？</translation>
    </message>
    <message>
        <source>Take names, canvas and background from the file too? No undo takes these back.</source>
        <translation>是否同时采用文件中的名称、画布和背景？此项无法撤销。</translation>
    </message>
    <message>
        <source>The file has other backups or another number of ports than this sender. So neither the import nor what was done to the sender before can be undone afterwards. Import it all the same?</source>
        <translation>该文件的输出口数量或备份与此主控不同。因此导入之后，导入本身以及之前对此主控的操作都无法撤销。仍然导入吗？</translation>
    </message>
    <message>
        <source>Not all of %1 could be read.

%2</source>
        <translation>%1只读取了一部分。

%2</translation>
    </message>
    <message>
        <source>%1 was not imported, and nothing was changed. Choose a file that was exported as the layout of a sender, or of a port, as the menu says.

%2</source>
        <translation>%1没有导入，项目没有任何更改。请按菜单所示，选择作为主控布局或输出口布局导出的文件。

%2</translation>
    </message>
    <message>
        <source>Imported: %1</source>
        <translation>已导入：%1</translation>
    </message>
</context>
<context>
    <name>FaultsDock</name>
    <message>
        <source>Faults</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Faults of the project</source>
        <translation>项目的故障</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>…还有%1个</translation>
    </message>
    <message>
        <source>No faults</source>
        <translation>没有故障</translation>
    </message>
    <message>
        <source>Faults: %1</source>
        <translation>故障：%1</translation>
    </message>
    <message>
        <source>lies over another cabinet</source>
        <translation>与其他箱体重叠</translation>
    </message>
    <message>
        <source>lies outside the canvas</source>
        <translation>超出画布</translation>
    </message>
    <message>
        <source>is not in the chain</source>
        <translation>不在连线中</translation>
    </message>
    <message>
        <source>has the number of another cabinet</source>
        <translation>与其他箱体编号相同</translation>
    </message>
    <message>
        <source>leaves a gap before it in the chain</source>
        <translation>在连线中前面缺少编号</translation>
    </message>
    <message>
        <source>has other receiving cards before it than the file says</source>
        <translation>之前的接收卡数量与文件所述不同</translation>
    </message>
    <message>
        <source>is of a product that is not known here</source>
        <translation>所属的产品在这里未知</translation>
    </message>
    <message>
        <source>a parameter file is missing</source>
        <translation>缺少参数文件</translation>
    </message>
    <message>
        <source>is in a group that there is not</source>
        <translation>所属的分组不存在</translation>
    </message>
    <message>
        <source>backs up a port that there is not</source>
        <translation>所备份的输出口不存在</translation>
    </message>
    <message>
        <source>backs itself up in the end</source>
        <translation>最终备份了自身</translation>
    </message>
    <message>
        <source>has more pixels than it can carry</source>
        <translation>像素数超出带载能力</translation>
    </message>
    <message>
        <source>Sender %1, port %2</source>
        <translation>主控 %1 输出口 %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1, cabinet number %2: %3</source>
        <translation>%1，编号 %2 的箱体：%3</translation>
    </message>
    <message>
        <source>%1, cabinet at %2, %3: %4</source>
        <translation>%1，位于 %2, %3 的箱体：%4</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>Start an empty project with one sender</source>
        <translation>新建一个带有一个主控的空项目</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Open a project: an archive (.prj) or a bare document (.xml)</source>
        <translation>打开项目：压缩包(.prj)或单独的文档(.xml)</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近的项目(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the project to its file</source>
        <translation>把项目保存到其文件</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>Save the project under another name</source>
        <translation>用另一个名称保存项目</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>暂无</translation>
    </message>
    <message>
        <source>This project</source>
        <translation>此项目</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved. Save them now?</source>
        <translation>%1有未保存的更改。现在保存吗？</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Projects (*.prj *.xml);;All files (*)</source>
        <translation>项目 (*.prj *.xml);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>正在打开%1</translation>
    </message>
    <message>
        <source>Not all of %1 could be read. Saving it under its own name would lose the rest.

%2</source>
        <translation>%1只读取了一部分。用原名保存会丢失其余部分。

%2</translation>
    </message>
    <message>
        <source>%1 could not be opened; what was open before still is.

%2</source>
        <translation>无法打开%1；原来打开的项目保持不变。

%2</translation>
    </message>
    <message>
        <source>%1 cannot be opened for editing.

%2

Open it to look at? It can then be saved under another name.</source>
        <translation>无法打开%1进行编辑。

%2

要以只读方式打开吗？之后可以用另一个名称保存。</translation>
    </message>
    <message>
        <source>%1 was read only in part. Saving replaces the file, and what was not read is lost. Save all the same?</source>
        <translation>%1只读取了一部分。保存会替换该文件，未读取的内容将丢失。仍然保存吗？</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>保存项目</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>正在保存%1</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已保存：%1</translation>
    </message>
    <message>
        <source>%1 was not saved. Try another name or folder.

%2</source>
        <translation>%1没有保存。请换一个名称或文件夹。

%2</translation>
    </message>
    <message>
        <source>wall</source>
        <translation>屏体</translation>
    </message>
    <message>
        <source>Projects (*.prj)</source>
        <translation>项目 (*.prj)</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1已经存在。要替换吗？</translation>
    </message>
    <message>
        <source>Open one of the projects that were open last</source>
        <translation>打开最近打开过的项目</translation>
    </message>
    <message>
        <source>%1 is saved, but not all that belongs into it.

%2</source>
        <translation>%1已保存，但其中缺少一部分内容。

%2</translation>
    </message>
    <message>
        <source> copy</source>
        <translation> 副本</translation>
    </message>
</context>
<context>
    <name>GroupRows</name>
    <message>
        <source>… and %1 more groups</source>
        <translation>…还有%1个分组</translation>
    </message>
    <message>
        <source>Group of %1 cabinets</source>
        <translation>分组，%1个箱体</translation>
    </message>
    <message>
        <source>A click or Return selects its cabinets</source>
        <translation>单击或按回车键可选择其中的箱体</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>There are no cabinets yet.

Press Insert, or choose Wall, Add block, to place a block of them. Or drop a project here to open it.</source>
        <translation>还没有箱体。

按Insert键，或选择“屏体”菜单中的“添加箱体块”来放置一块箱体。也可以把项目文件拖到这里打开。</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>选择(&amp;S)</translation>
    </message>
    <message>
        <source>Select and move cabinets</source>
        <translation>选择和移动箱体</translation>
    </message>
    <message>
        <source>&amp;Number</source>
        <translation>编号(&amp;N)</translation>
    </message>
    <message>
        <source>Number the current port&apos;s cabinets one by one</source>
        <translation>为当前输出口的箱体逐个编号</translation>
    </message>
    <message>
        <source>&amp;Pan</source>
        <translation>平移(&amp;P)</translation>
    </message>
    <message>
        <source>Move the view; also with the middle button, or with the space bar held</source>
        <translation>移动视图；也可以用鼠标中键，或按住空格键拖动</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>项目(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Add sender</source>
        <translation>添加主控(&amp;A)</translation>
    </message>
    <message>
        <source>Add a sending unit or processor, with ports of its own</source>
        <translation>添加一个带有输出口的发送卡或处理器</translation>
    </message>
    <message>
        <source>&amp;Rename sender</source>
        <translation>重命名主控(&amp;R)</translation>
    </message>
    <message>
        <source>Give the sender in the tree a name</source>
        <translation>为列表中的主控命名</translation>
    </message>
    <message>
        <source>&amp;Delete sender…</source>
        <translation>删除主控(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Wall</source>
        <translation>屏体(&amp;W)</translation>
    </message>
    <message>
        <source>Add &amp;block…</source>
        <translation>添加箱体块(&amp;B)…</translation>
    </message>
    <message>
        <source>Place a block of equal cabinets on a port</source>
        <translation>在一个输出口上放置一块相同的箱体</translation>
    </message>
    <message>
        <source>&amp;Turn…</source>
        <translation>旋转(&amp;T)…</translation>
    </message>
    <message>
        <source>Turn the selected cabinets about their middle</source>
        <translation>绕中心旋转所选箱体</translation>
    </message>
    <message>
        <source>Show turned cabinets as &amp;turned</source>
        <translation>显示箱体的旋转(&amp;S)</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>设置(&amp;S)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Degrees, clockwise:</source>
        <translation>角度，顺时针：</translation>
    </message>
    <message>
        <source>There is no sender yet. Add one first.</source>
        <translation>还没有主控。请先添加一个。</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>实际大小(&amp;A)</translation>
    </message>
    <message>
        <source>View pixels for 100 pixels of the wall</source>
        <translation>屏体每100像素在视图中所占的像素</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>%1[*] (to look at)</source>
        <translation>%1[*]（只读）</translation>
    </message>
    <message>
        <source>Saved, stays marked as modified</source>
        <translation>已保存，仍标记为已修改</translation>
    </message>
    <message>
        <source>Senders, names and the like changed, which no undo takes back. A project that changed so counts as modified until it is opened again, though all is saved.</source>
        <translation>主控、名称等的更改无法撤销。这样更改过的项目虽已全部保存，在重新打开之前仍视为已修改。</translation>
    </message>
    <message>
        <source>%1 cabinets, %2 numbered, %3 selected</source>
        <translation>%1个箱体，%2个已编号，%3个已选择</translation>
    </message>
    <message>
        <source>Cabinets</source>
        <translation>箱体</translation>
    </message>
    <message>
        <source>&amp;Grid</source>
        <translation>显示网格(&amp;G)</translation>
    </message>
    <message>
        <source>Close the window; what is not saved is asked for first</source>
        <translation>关闭窗口；有未保存的内容时先询问</translation>
    </message>
    <message>
        <source>Delete the sender in the tree with all its cabinets; the last one of a project stays</source>
        <translation>删除项目树中的主控及其所有箱体；项目至少保留一个主控</translation>
    </message>
    <message>
        <source>Show the wall larger, about the middle of the view</source>
        <translation>以视图中心为基准放大</translation>
    </message>
    <message>
        <source>Show the wall smaller, about the middle of the view</source>
        <translation>以视图中心为基准缩小</translation>
    </message>
    <message>
        <source>Show the canvas, and what lies beyond it, as a whole</source>
        <translation>显示整个画布以及画布以外的箱体</translation>
    </message>
    <message>
        <source>Show each pixel of the wall as one of the screen</source>
        <translation>屏幕的一个像素显示屏体的一个像素</translation>
    </message>
    <message>
        <source>Show lines on the canvas to measure by eye</source>
        <translation>在画布上显示网格线，便于目测</translation>
    </message>
    <message>
        <source>Show this part of the window, or hide it</source>
        <translation>显示或隐藏窗口的这一部分</translation>
    </message>
    <message>
        <source>Off: they are shown and found upright, each about its middle</source>
        <translation>关闭时：旋转的箱体以各自中心为准按未旋转显示和选取</translation>
    </message>
    <message>
        <source>&amp;Fit all</source>
        <translation>适应窗口(&amp;F)</translation>
    </message>
</context>
<context>
    <name>NumberTool</name>
    <message>
        <source>Number from %1 on: click, drag or arrow keys. With Shift: insert after the selected cabinet.</source>
        <translation>从 %1 开始编号：点击、拖动或使用方向键。按住 Shift：插入到所选箱体之后。</translation>
    </message>
</context>
<context>
    <name>PanTool</name>
    <message>
        <source>Drag to move the view.</source>
        <translation>拖动以移动视图。</translation>
    </message>
</context>
<context>
    <name>PortActions</name>
    <message>
        <source>Make it the &amp;backup of</source>
        <translation>设为以下输出口的备份(&amp;B)</translation>
    </message>
    <message>
        <source>The current port feeds what another one feeds, should that fail</source>
        <translation>另一个输出口发生故障时，由当前输出口代为输出</translation>
    </message>
    <message>
        <source>&amp;End the backup</source>
        <translation>取消备份(&amp;E)</translation>
    </message>
    <message>
        <source>Make the current port one of its own again</source>
        <translation>使当前输出口恢复为独立的输出口</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>The settings could not be kept. Look whether the disk has room, and whether files can be written in %1.</source>
        <translation>设置无法保存。请检查磁盘是否有剩余空间，以及%1中能否写入文件。</translation>
    </message>
</context>
<context>
    <name>ProjectTree</name>
    <message>
        <source>Sender, port</source>
        <translation>主控、输出口</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>负载</translation>
    </message>
    <message>
        <source>F2 renames the sender</source>
        <translation>按F2重命名主控</translation>
    </message>
    <message>
        <source>Port %1</source>
        <translation>输出口%1</translation>
    </message>
    <message>
        <source>%1 cabinets with %2 pixels, of %3 that a port carries at %4 Hz and %5 bit</source>
        <translation>%1个箱体，共%2像素；在%4 Hz、%5位时一个输出口可带%3像素</translation>
    </message>
    <message>
        <source>Senders, ports and groups</source>
        <translation>主控、输出口和分组</translation>
    </message>
    <message>
        <source>Port %1, backup of %2</source>
        <translation>输出口%1，备份%2</translation>
    </message>
    <message>
        <source>It feeds what the other port feeds, should that fail</source>
        <translation>另一个输出口发生故障时，由它代为输出</translation>
    </message>
    <message>
        <source>Port %1 becomes the backup of %2</source>
        <translation>输出口%1将成为%2的备份</translation>
    </message>
    <message>
        <source>Space shows or hides it, Shift+Space locks or unlocks it. Drag it onto another port to make it the backup of that one.</source>
        <translation>按空格键显示或隐藏，按Shift+空格键锁定或解锁。拖到另一个输出口上，可设为其备份。</translation>
    </message>
</context>
<context>
    <name>PropertyPages</name>
    <message>
        <source>Port</source>
        <translation>输出口</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>输出口：</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1，共%2个</translation>
    </message>
    <message>
        <source>Hidden ports are neither drawn nor edited</source>
        <translation>隐藏的输出口不绘制，也不能编辑</translation>
    </message>
    <message>
        <source>Cabinets of a locked port stay as they are</source>
        <translation>锁定的输出口的箱体保持不变</translation>
    </message>
    <message>
        <source>Cabinets:</source>
        <translation>箱体：</translation>
    </message>
    <message>
        <source>Pixels:</source>
        <translation>像素：</translation>
    </message>
    <message>
        <source>Load:</source>
        <translation>负载：</translation>
    </message>
    <message>
        <source>%1 of %2 pixels at %3 Hz and %4 bit</source>
        <translation>%1，可带%2像素（%3 Hz、%4位）</translation>
    </message>
    <message>
        <source>Backup of:</source>
        <translation>源输出口：</translation>
    </message>
    <message>
        <source>%1; cabinets of its own are kept until that ends</source>
        <translation>%1；自身的箱体保留，取消备份后恢复</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Sender</source>
        <translation>主控</translation>
    </message>
    <message>
        <source>What the sender is called in the tree and on the sheets</source>
        <translation>主控在列表和施工图册中的名称</translation>
    </message>
    <message>
        <source>Its name on the printed form, printed when ticked</source>
        <translation>打印表单上的名称，勾选后打印</translation>
    </message>
    <message>
        <source>How many ports the sender has</source>
        <translation>主控的输出口数量</translation>
    </message>
    <message>
        <source>Frames a second; twice as many halve what a port carries</source>
        <translation>每秒帧数；帧数加倍，输出口的带载减半</translation>
    </message>
    <message>
        <source>not set (60)</source>
        <translation>未设置(60)</translation>
    </message>
    <message>
        <source>The more of them, the fewer pixels a port carries</source>
        <translation>位数越多，一个输出口可带的像素越少</translation>
    </message>
    <message>
        <source>not set (8)</source>
        <translation>未设置(8)</translation>
    </message>
    <message>
        <source>Pixels of the picture that the sender shows</source>
        <translation>主控所显示画面的像素数</translation>
    </message>
    <message>
        <source>Pixels by which the whole layout is moved on the canvas</source>
        <translation>整个布局在画布上移动的像素数</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>A line of the printed form, printed when ticked</source>
        <translation>打印表单的一行，勾选后打印</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Print as:</source>
        <translation>打印名称：</translation>
    </message>
    <message>
        <source>Ports:</source>
        <translation>输出口数：</translation>
    </message>
    <message>
        <source>Frequency in Hz:</source>
        <translation>帧频，Hz：</translation>
    </message>
    <message>
        <source>Bits a colour:</source>
        <translation>色深，位：</translation>
    </message>
    <message>
        <source>Canvas width:</source>
        <translation>画布宽度：</translation>
    </message>
    <message>
        <source>Canvas height:</source>
        <translation>画布高度：</translation>
    </message>
    <message>
        <source>Moved right by:</source>
        <translation>右移：</translation>
    </message>
    <message>
        <source>Moved down by:</source>
        <translation>下移：</translation>
    </message>
    <message>
        <source>Project:</source>
        <translation>项目：</translation>
    </message>
    <message>
        <source>Designer:</source>
        <translation>设计人：</translation>
    </message>
    <message>
        <source>Date of design:</source>
        <translation>设计日期：</translation>
    </message>
    <message>
        <source>Approver:</source>
        <translation>审核人：</translation>
    </message>
    <message>
        <source>Date of approval:</source>
        <translation>审核日期：</translation>
    </message>
</context>
<context>
    <name>SelectTool</name>
    <message>
        <source>Release to place; Alt moves freely, Esc leaves all as it was.</source>
        <translation>松开以放置；按住Alt可自由移动，Esc取消。</translation>
    </message>
    <message>
        <source>Selects the cabinets that lie wholly inside.</source>
        <translation>选择完全在框内的箱体。</translation>
    </message>
    <message>
        <source>Selects all cabinets that are touched.</source>
        <translation>选择框碰到的所有箱体。</translation>
    </message>
    <message>
        <source>Release to turn; Shift keeps to 15 degrees, Esc leaves all as it was.</source>
        <translation>松开以旋转；按住Shift以15度为步长，Esc取消。</translation>
    </message>
    <message>
        <source>Click, double click or drag a band to select; the knob above turns. Arrow keys move by a cabinet, with Shift by a pixel.</source>
        <translation>单击、双击或拖框选择；上方圆钮用于旋转。方向键移动一个箱体，加Shift移动一个像素。</translation>
    </message>
</context>
<context>
    <name>SenderEdits</name>
    <message>
        <source>Go on?</source>
        <translation>要继续吗？</translation>
    </message>
    <message>
        <source>There is no such port.</source>
        <translation>没有这个输出口。</translation>
    </message>
    <message>
        <source>Port %1 is a backup already. End that first.</source>
        <translation>输出口%1已是备份。请先取消备份。</translation>
    </message>
    <message>
        <source>Port %1 has a backup itself, and a backup has none.</source>
        <translation>输出口%1自身有备份，而备份不能再有备份。</translation>
    </message>
    <message>
        <source>A port is a backup of another port.</source>
        <translation>输出口只能作为另一个输出口的备份。</translation>
    </message>
    <message>
        <source>Port %1 is a backup itself, and a backup has none.</source>
        <translation>输出口%1本身是备份，而备份不能再有备份。</translation>
    </message>
    <message>
        <source>Port %1 has cabinets of its own: %2. They stay in the project, but are neither shown nor checked until the backup ends.</source>
        <translation>输出口%1自身有%2个箱体。它们保留在项目中，但在取消备份之前不显示，也不检查。</translation>
    </message>
    <message>
        <source>The edits of this sender can no longer be undone afterwards.</source>
        <translation>此后，此主控之前的操作无法再撤销。</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>输出口%1</translation>
    </message>
    <message>
        <source>%1, port %2</source>
        <translation>%1的输出口%2</translation>
    </message>
    <message>
        <source>a port that is not there</source>
        <translation>不存在的输出口</translation>
    </message>
    <message>
        <source>These ports hold cabinets or have to do with backups, and would go: %1. They come back with a larger number of ports, but a save leaves them out.</source>
        <translation>以下输出口有箱体或涉及备份，将不再使用：%1。增加输出口数量后它们会恢复，但保存时不会写入。</translation>
    </message>
    <message>
        <source>Port %1 becomes the backup of %2.</source>
        <translation>输出口 %1 将成为%2的备份。</translation>
    </message>
    <message>
        <source>Port %1 is no backup any more.</source>
        <translation>输出口 %1 将不再是备份。</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>Show the program in this language from now on</source>
        <translation>今后以此语言显示本程序</translation>
    </message>
    <message>
        <source>&amp;Snap to neighbours and canvas</source>
        <translation>吸附到相邻箱体和画布(&amp;S)</translation>
    </message>
    <message>
        <source>What is dragged keeps to edges that are near; not while Alt is held</source>
        <translation>拖动时吸附到附近的边缘；按住Alt时不吸附</translation>
    </message>
</context>
<context>
    <name>StepText</name>
    <message>
        <source>Add cabinets</source>
        <translation>添加箱体</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Number all</source>
        <translation>全部编号</translation>
    </message>
    <message>
        <source>Clear numbers</source>
        <translation>清除编号</translation>
    </message>
    <message>
        <source>Import layout</source>
        <translation>导入布局</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>调整尺寸</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>建立分组</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>取消分组</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Move to port</source>
        <translation>移至输出口</translation>
    </message>
</context>
</TS>
