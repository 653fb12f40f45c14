Option Explicit

Public Sub Pruefen()
    Dim i As Long
    If i = 1 Then
        i = 2
    End When
End Sub
