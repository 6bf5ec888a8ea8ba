// A C# host: imports a model file and says what it holds.
//
//     csc -platform:x64 ReadModel.cs TAMURReader.cs
//     ReadModel FILE
//
// TAMURReader.cs is made from the contract. The component must be registered, or be used without
// registration through the two manifests.
using System;
using System.Runtime.InteropServices;
using TAMURReader;

internal static class ReadModel
{
    // Labels are copied: they are lent, and live as long as the reader.
    private static string[] LabelsOf(TMRElementLabels labels)
    {
        var texts = new string[labels.nbLabels];
        for (int i = 0; i < texts.Length; ++i)
        {
            IntPtr label = Marshal.ReadIntPtr(labels.tabLabels, i * IntPtr.Size);
            texts[i] = Marshal.PtrToStringBSTR(label);
        }
        return texts;
    }

    private static void PrintNodes(ITAMURStructureReader reader)
    {
        ITMRNodeAccessor nodes;
        Marshal.ThrowExceptionForHR(reader.GetNodeAccessor(out nodes));
        try
        {
            int count;
            Marshal.ThrowExceptionForHR(nodes.GetNbNodes(out count));
            Console.WriteLine("nodes: {0}", count);
            string firstLabel = "";
            for (int rank = 0; rank < count; ++rank)  // a rank outside ends the process
            {
                TMRNode node;
                Marshal.ThrowExceptionForHR(nodes.GetNodeAtRank(rank, out node));
                string[] labels = LabelsOf(node.ElemLabels);
                Console.WriteLine("  {0}: {1} {2} {3} {4}", node.identifier, node.Geometrie.x,
                                  node.Geometrie.y, node.Geometrie.z, string.Join(" ", labels));
                if (firstLabel == "" && labels.Length > 0) firstLabel = labels[0];
                node.Free();
            }
            Console.WriteLine("first label: {0}", firstLabel);
        }
        finally
        {
            Marshal.ReleaseComObject(nodes);  // now and not by the collector: before the reader
        }
    }

    private static void PrintBars(ITAMURStructureReader reader)
    {
        ITMRFilaireAccessor bars;
        Marshal.ThrowExceptionForHR(reader.GetFilaireAccessor(out bars));
        try
        {
            int count;
            Marshal.ThrowExceptionForHR(bars.GetNbFilaires(out count));
            Console.WriteLine("bars: {0}", count);
            for (int rank = 0; rank < count; ++rank)
            {
                TMRFilaire bar;
                Marshal.ThrowExceptionForHR(bars.GetFilaireAtRank(rank, out bar));
                Console.WriteLine("  {0}: {1} in {2}, length {3}", bar.identifier,
                                  Marshal.PtrToStringBSTR(bar.StartSection.SectionLib),
                                  Marshal.PtrToStringBSTR(bar.FilaireMaterial.MaterialName),
                                  bar.RealLength);
                bar.Free();
            }
        }
        finally
        {
            Marshal.ReleaseComObject(bars);
        }
    }

    [STAThread]  // the component's objects belong to the thread that made them
    private static int Main(string[] arguments)
    {
        if (arguments.Length != 1)
        {
            Console.Error.WriteLine("usage: ReadModel FILE");
            return 2;
        }
        Type type = Type.GetTypeFromCLSID(ClassIds.TAMURStructureReader);
        var reader = (ITAMURStructureReader)Activator.CreateInstance(type);
        try
        {
            // A file that cannot be opened is reported in a message box.
            if (reader.Import(arguments[0]) != 0) return 1;
            PrintNodes(reader);
            PrintBars(reader);
            return 0;
        }
        finally
        {
            Marshal.ReleaseComObject(reader);
        }
    }
}
