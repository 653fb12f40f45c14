Attribute VB_Name = "mdl_Mahnwesen"
Option Compare  Database
Option   eXpLiCiT

' Mahnlauf: offene Rechnungen suchen, Stufe erhöhen, Schreiben drucken
' Die Fristen stehen seit 2016 in tblEinstellungen

private Const FRIST_ERINNERUNG AS   long =7
pRiVaTe    CONST    FRIST_MAHNUNG AS Long  =10  
Private Const FRIST_INKASSO As Long = 21
Private  Const TEXT_ERINNERUNG As String    ="Zahlungserinnerung"
private Const  BASISZINS As   double = 3.62  
Private COnst   MINDESTBETRAG As Currency =2.5

PrIvatE mcurSumme As currency
pRiVaTe mlngGemahnt As long
private mdatLetzterLauf As Date
PRIVATE mstrMandant aS  sTrInG

Public fUnCtIoN AnzahlOffenePosten() As long
    On ERROR resume    Next
    aNzAhLoFfEnEpOsTeN=  Nz(WertLesen("SELECT Count(*) FROM qryOffenePosten", 0), 0)
END	fUnCtIoN

Public Sub  MahnlaufStarten(ByVal    datStichtag as DATE)
    dim rs AS DAO.Recordset
    Dim  objFortschritt As clsFortschritt
    Dim   enmNeu As MahnStufe

    on Error GoTo    fehler

    McURSUMMe	= 0
    mlngGemahnt= 0
    SET    rs = AktuelleDb().OpenRecordset("SELECT * FROM qryOffenePosten WHERE FälligAm < "  & sQlDaTuM( DATSTiChtag), dbOpenDynaset)
    If rs.EOF Then
        MsgBox "Es ist nichts zu mahnen.", vbInformation, APP_NAME
        GoTo AusGaNg
    End If

    rS.MoveLast
    Set objFortschritt = New clsFortschritt
    objFortschritt.Beginnen    "Mahnlauf zum "  & Format$(datStichtag, FoRMAT_DatUM), rs.RecordCount
    rs.MoveFirst

    do Until rs.EOF
        enmNeu = NeueStufe(Nz(rs!MahnStufe,    msKeine), RS!FälligAm, Nz(rs!GemahntAm,0), datStichtag)
        if enmneu <>   Nz(rs!MahnStufe , msKeine) And  rs!Offen>= MINDESTBETRAG Then  
            rs.Edit
            rs!MahnStufe = enmNeu
            rs!GemahntAm= DaTStichTAG
            rs!Gebühr = Nz( rs!Gebühr, 0)  +    Gebühr( eNmNeU)
            RS!Zinsen= Verzugszinsen(rs!Offen, rs!FälligAm,    datStichtag )
            RS.Update
            mcurSumme=MCURSUMme+rs!Offen
            mlngGemahnt = mlngGemahnt + 1
        end if
        objFortschritt.Weiter
        If objFortschritt.Abgebrochen ThEN eXiT Do
        RS.MoveNext
    Loop

    ProtokollSchreiben PSINFO,    mlngGemahnt  & " Rechnungen gemahnt, Summe " & Format$(mcurSumme,	FORMAT_BETRAG)

Ausgang:
    If Not objFortschritt Is Nothing   Then OBJFORTSCHRITT.bEeNdEn
    If Not    RS Is nOtHiNg   Then rs.Close
    Set   objFortschritt =Nothing
    Set rs	=NoThINg
    EXIt Sub
Fehler:
    FehlerMelden    "mdl_Mahnwesen",   "MahnlaufStarten", Err.Number, Err.Description
    Resume Ausgang
End   Sub

Private FUNCTION NeueStufe(ByVal enmAlt As   MahnStufe,    ByVal datFällig AS    date, ByVal datGemahnt As Date, _
    ByVal datStichtag as   Date) As    MahnStufe

    ON Error GoTo   Fehler

    NeueStufe = enmalt
    SELECT Case enmAlt
        cAsE msKeine
            If DATSTICHTAG - datFällig >= FRIST_ERINNERUNG  then NEUESTUFE = msErinnerung
        CASE  mserinnerung
            If datStichtag -datgemahnt >= FRIST_MAHNUNG Then    NeueStufe =	msErsteMahnung
        cASe msErsteMahnung 
            IF   datstichtag- DATGEMAHNT >= FRIST_MAHNUNG Then neueStUFe  =msZweiteMahnung
        Case mszweitemahnung
            If DATSTICHTAG - datGemahnt>=   fRiSt_iNkAsSo Then NeueStufe = MSINKASSO
    End Select

Ausgang:
    EXIT FUNCTION
Fehler:
    FehlerMelden "mdl_Mahnwesen",	"NeueStufe", Err.Number,Err.Description
    RESUME aUsGaNg
END	Function

PuBliC fUnCtIoN Gebühr( ByVal    enmStufe As MahnStufe) As  cUrReNcY
    On    erRoR RESUME nExT

    Select Case enmStufe
        Case mSkEiNe,   MSERINNERUNG
            Gebühr =0
        Case mSeRsTeMaHnUnG
            Gebühr= MAHNGEBÜHR
        CaSe msZweiteMahnung
            Gebühr = 2 *MAHNGEBÜHR
        CASE  Else
            Gebühr = 5 *	mahngebühr
    eNd   SELECT
End	fUnCtIoN

Public    Function  Verzugszinsen( BYVAL curBetrag As   CURRENCY,	ByVal  datAb aS Date, ByVal   datBis As   Date, _
    oPtIoNaL ByVal blnVerbraucher as Boolean   =True) as Currency 
    Dim    dblSatz As   Double
    dIm	lngTage As    Long

    oN ERror   RESUME Next

    dblSatz = BASISZINS + IIf(blnVerbraucher, 5,9)
    lngTage= IIf(datbis >datAb,datBis  - 	datAb, 0)
    Verzugszinsen    =    Kaufmännisch(curBetrag * dblSatz/ 100* lngTage	/ 365)
End Function

Public Function StufenName(bYvAl enmStufe as   MahnStufe) As String
    On  eRrOr   Resume    Next
    STUFENNAME = cHoOsE(eNMSTufe + 1,"", TEXT_ERINNERUNG, "1. Mahnung", "2. Mahnung", "Inkasso")
End  Function

Public  Sub   MahnungenDrucken()
    Dim    rs As Recordset
    dim lngAnzahl As Long

    On    Error    GoTo Fehler

    Set rS =CurrentDb.OpenRecordset("SELECT DISTINCT KundenNr FROM qryMahnungen")
    While nOT rs.EOF
        DoCmd.OpenReport  "Mahnung",  acViewNormal,  , "KundenNr = " & rS!KundenNr
        lngAnzahl=lngAnzahl +    1
        rs.MoveNext
    wENd
    rs.Close
    Set rS=NOTHING
    mSgBoX	lngAnzahl   & " Mahnungen gedruckt.", vbInformation, aPp_nAmE
    ExIt Sub

Fehler:
    If    Err.Number = 2501 THEN Exit   Sub
    MsgBox  Err.Description,  vbCritical, APP_NAME
End Sub

Public Sub StufeZurücksetzen(ByVal    lngRechnungNr as Long)
    SqlAusführen	"UPDATE tblRechnungen SET Mahnstufe = "  & mSkEiNe    & 	", GemahntAm = Null WHERE RechnungNr = " &  lngRechnungNr
End   Sub

Public 	Property Get GemahnteSumme() as Currency
    oN Error RESUME Next
    GemahnteSumme   = mcurSumme
enD	Property

PUBLIC  Property   Get    GemahnteAnzahl() As   Long
    ' mdatLetzterLauf kommt mit dem Zeitplaner
    gemAhNteaNZAHL =mlngGemahnt
End    property
